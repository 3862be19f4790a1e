#include "tests/gui/program.h"
#include "tests/support/sample_files.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace schemlet {

// Drawings on the disk.

namespace {

/// The program without the toolbox on the canvas.
struct Drawing : Program {
    Drawing()
    {
        keys("ctrl+t");
        waitUntil("no toolbox", [&] { return !shows("panel", "ToolBox"); });
    }

    void waitForTitle(const QString& name) const { waitForWindow(("- Schemlet 2.0 " + name).trimmed()); }

    void layWire()
    {
        keys("Right Right Right");
        waitForWire(true);
    }
    void waitForWire(bool there) const
    {
        waitUntil(there ? "wire" : "no wire", [&] { return inked(115, 100) == there; });
    }

    /// Answers the question that a short-cut brings.
    void command(const char* key, const char* reply)
    {
        open(key, "Schemlet 2.0");
        keys(reply);
    }

    /// Types a name into the file dialog; empty cancels it.
    void choose(const char* dialog, const QString& name)
    {
        waitForWindow(dialog);
        type(name);
        keys(name.isEmpty() ? "Escape" : "Return");
    }

    /// The marker blinks: now and then the canvas looks like this.
    void waitForCanvas(const QImage& picture) const
    {
        waitUntil("the picture on the canvas", [&] {
            const QImage seen = canvas();
            return seen == picture.convertToFormat(seen.format());
        });
    }
};

} // namespace

TEST(Program, NewOpenAndExitDoAsTheQuestionIsAnswered)
{
    Drawing drawing;
    drawing.layWire();
    drawing.command("ctrl+n", "Escape");
    drawing.waitForText("← Left"); // what the answer happens to mean
    drawing.layWire();
    drawing.command("ctrl+o", "y");
    drawing.choose("Save", "first.bmp");
    drawing.choose("Open", "");
    drawing.waitForTitle("");
    drawing.layWire();
    drawing.command("ctrl+n", "n");
    drawing.waitForMainWindow();
    drawing.waitForWire(false);

    drawing.layWire();
    drawing.command("ctrl+n", "y");
    drawing.choose("Save", "second");
    drawing.waitForMainWindow();
    drawing.waitForWire(false);

    drawing.command("ctrl+x", "c");
    drawing.waitForMainWindow();
    drawing.command("ctrl+x", "y");
    drawing.choose("Save", "third.png");
    EXPECT_EQ(drawing.exitStatus(), 0);
    EXPECT_EQ(drawing.filesAtHome(), QStringList({"first.bmp", "second.JPEG", "third.png"}));
}

TEST(Program, SavesReopensAndSavesAgainPixelForPixel)
{
    Drawing drawing;
    drawing.keys("Right", 9);
    drawing.keys("ctrl+r");
    drawing.drag(300, 300, 400, 360);
    waitUntil("a box", [&] { return drawing.inked(350, 359); });
    drawing.keys("ctrl+s");
    drawing.choose("Save", "first");
    drawing.waitForTitle("first.JPEG");
    const QImage first(drawing.home().filePath("first.JPEG"));
    drawing.waitForCanvas(first);

    drawing.command("ctrl+o", "n");
    drawing.choose("Open", "first.JPEG");
    drawing.waitForTitle("first.JPEG");
    drawing.waitForCanvas(first);
    drawing.drag(320, 320, 340, 340);
    waitUntil("a box in the box", [&] { return drawing.inked(330, 339); });
    const QString path = drawing.home().filePath("second.png");
    store(path, "to be replaced");
    drawing.keys("ctrl+s");
    drawing.choose("Save", "second.png");
    drawing.waitForText("*Do you want to replace it?");
    drawing.keys("alt+y");
    drawing.waitForTitle("second.png");
    const QImage second(path);
    drawing.waitForCanvas(second);
    QImage expected = first;
    QPainter(&expected).drawImage(318, 318, second, 318, 318, 25, 25);
    EXPECT_TRUE(second == expected);
    EXPECT_TRUE(second != first);

    store(path, "damaged");
    drawing.command("ctrl+o", "n");
    drawing.choose("Open", "second.png");
    drawing.waitForText("Invalid picture*");
    drawing.keys("Return");
    drawing.waitForTitle("second.png");
    drawing.waitForCanvas(second);
}

} // namespace schemlet
