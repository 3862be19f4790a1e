#include "tests/gui/program.h"
#include "tests/support/sample_files.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace schemlet {

// Drawings on the disk.

namespace {

/// Answers the question that a short-cut brings.
void command(Program& program, const char* key, const char* reply)
{
    program.open(key, "Schemlet 2.0");
    program.keys(reply);
}

/// Types a name into the file dialog.
void choose(Program& program, const char* dialog, const QString& name)
{
    program.waitForWindow(dialog);
    program.type(name);
    program.keys("Return");
}

} // namespace

TEST(Program, SavesReopensAndSavesAgainPixelForPixelUntilItsEnd)
{
    Program program;
    const auto waitForCanvas = [&](const QImage& picture) { // the marker blinks
        waitUntil("the picture on the canvas", [&] {
            const QImage seen = program.canvas();
            return seen == picture.convertToFormat(seen.format());
        });
    };
    program.keys("ctrl+t"); // without the toolbox
    program.keys("Right", 9);
    program.keys("ctrl+r");
    program.drag(300, 300, 400, 360);
    waitUntil("a box", [&] { return program.inked(350, 359); });
    program.keys("ctrl+s");
    choose(program, "Save", "first");
    program.waitForWindow("- Schemlet 2.0 first.JPEG");
    const QImage first(program.home().filePath("first.JPEG"));
    waitForCanvas(first);

    command(program, "ctrl+o", "n");
    choose(program, "Open", "first.JPEG");
    program.waitForWindow("- Schemlet 2.0 first.JPEG");
    program.drag(320, 320, 340, 340);
    waitUntil("a box in the box", [&] { return program.inked(330, 339); });
    const QString path = program.home().filePath("second.png");
    store(path, "to be replaced");
    program.keys("ctrl+s");
    choose(program, "Save", "second.png");
    program.waitForText("*Do you want to replace it?");
    program.keys("alt+y");
    program.waitForWindow("- Schemlet 2.0 second.png");
    const QImage second(path);
    waitForCanvas(second);
    QImage expected = first;
    QPainter(&expected).drawImage(318, 318, second, 318, 318, 25, 25);
    EXPECT_TRUE(second == expected);
    EXPECT_TRUE(second != first);

    program.keys("Right");
    command(program, "ctrl+n", "y");
    choose(program, "Save", "third");
    program.waitForMainWindow();
    command(program, "ctrl+x", "c");
    program.waitForMainWindow();
    waitUntil("clean paper", [&] { return !program.inked(350, 359); });
    command(program, "ctrl+x", "y");
    choose(program, "Save", "fourth.png");
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(program.filesAtHome(), QStringList({"first.JPEG", "fourth.png", "second.png", "third.JPEG"}));
}

} // namespace schemlet
