#include "tests/gui/program.h"
#include "tests/support/sample_files.h"

#include <QDir>
#include <QPainter>
#include <gtest/gtest.h>

namespace schemlet {

// Drawings on the disk.

namespace {

/// A folder with the program at work in it, without the toolbox on the canvas.
class Drawing {
public:
    Drawing() : program(Program::Stage::drawing, m_folder.path())
    {
        program.keys({"ctrl+t"});
        waitUntil("no toolbox", [&] { return !program.shows("panel", "ToolBox"); });
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QStringList listing() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void waitForTitle(const QString& name) const { program.waitForWindow(" - Schemlet 2.0 " + name); }

    void layWire()
    {
        program.keys({"Right", "Right", "Right"});
        waitForWire(true);
    }
    void waitForWire(bool there) const
    {
        waitUntil(there ? "wire" : "no wire", [&] { return program.inked(115, 100) == there; });
    }

    /// Answers the question that a short-cut brings.
    void answer(const char* key, const char* reply)
    {
        program.keys({key});
        program.waitForText(saveQuestion);
        program.keys({reply});
    }

    /// Types a name into the file dialog; empty cancels it.
    void choose(const char* dialog, const QString& name)
    {
        program.waitForWindow(dialog);
        program.type(name);
        program.keys({name.isEmpty() ? "Escape" : "Return"});
    }

    void save(const QString& name)
    {
        program.keys({"ctrl+s"});
        choose("Save", name);
    }
    void saveOver(const QString& name)
    {
        save(name);
        program.waitForText("*Do you want to replace it?");
        program.keys({"alt+y"});
    }

    void open(const QString& name)
    {
        answer("ctrl+o", "n");
        choose("Open", name);
    }

    /// The marker blinks: now and then the canvas looks like this.
    void waitForCanvas(const QImage& picture) const
    {
        waitUntil("the picture on the canvas", [&] {
            const QImage seen = program.canvas();
            return seen == picture.copy(seen.rect()).convertToFormat(seen.format());
        });
    }

private:
    QTemporaryDir m_folder;

public:
    Program program;
};

} // namespace

TEST(Program, NewDoesAsTheQuestionIsAnswered)
{
    Drawing drawing;
    Program& program = drawing.program;
    drawing.layWire();
    drawing.answer("ctrl+n", "Escape");
    program.waitForText("← Left"); // what the answer happens to mean
    drawing.waitForWire(true);
    drawing.answer("ctrl+n", "n");
    drawing.waitForTitle(" New File ");
    drawing.waitForWire(false);

    drawing.layWire();
    drawing.answer("ctrl+n", "y");
    drawing.choose("Save", "first");
    drawing.waitForTitle(" New File ");
    drawing.waitForWire(false);
    EXPECT_EQ(drawing.listing(), QStringList("first.JPEG"));
}

TEST(Program, OpenAndExitDoAsTheQuestionIsAnswered)
{
    Drawing drawing;
    Program& program = drawing.program;
    drawing.layWire();
    drawing.answer("ctrl+o", "Escape");
    drawing.waitForTitle(" New File ");
    drawing.answer("ctrl+o", "y");
    drawing.choose("Save", "second.bmp");
    drawing.choose("Open", "");
    drawing.waitForTitle("");
    drawing.open("");
    drawing.waitForTitle(" New File ");
    drawing.waitForWire(true);

    drawing.answer("ctrl+x", "c");
    drawing.waitForTitle(" New File ");
    drawing.answer("ctrl+x", "y");
    drawing.choose("Save", "third.png");
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(drawing.listing(), QStringList({"second.bmp", "third.png"}));
    for (const QString& name : drawing.listing()) {
        EXPECT_TRUE(contents(drawing.path(name)).startsWith("BM")) << name.toStdString();
    }
    EXPECT_EQ(program.filesAtHome(), QStringList());
}

TEST(Program, SavesReopensAndSavesAgainPixelForPixel)
{
    Drawing drawing;
    Program& program = drawing.program;
    program.keyTimes(9, "Right");
    program.keys({"ctrl+r"});
    program.drag(300, 300, 400, 360);
    waitUntil("a box", [&] { return program.inked(350, 359); });
    drawing.save("first");
    drawing.waitForTitle("first.JPEG");
    const QImage first(drawing.path("first.JPEG"));
    EXPECT_EQ(first.size(), program.canvas().size());
    drawing.waitForCanvas(first);

    drawing.open("first.JPEG");
    drawing.waitForTitle("first.JPEG");
    drawing.waitForCanvas(first);
    program.drag(320, 320, 340, 340);
    waitUntil("a box in the box", [&] { return program.inked(330, 339); });
    store(drawing.path("second.png"), "to be replaced");
    drawing.saveOver("second.png");
    drawing.waitForTitle("second.png");
    const QImage second(drawing.path("second.png"));
    drawing.waitForCanvas(second);
    QImage expected = first;
    QPainter(&expected).drawImage(318, 318, second, 318, 318, 25, 25);
    EXPECT_TRUE(second == expected);
    EXPECT_TRUE(second != first);

    const QImage large = colourful(1500, 1100);
    store(drawing.path("large.png"), written(large, "png"));
    drawing.open("large.png");
    drawing.waitForTitle("large.png");
    drawing.waitForCanvas(large);
    store(drawing.path("cut.png"), written(large, "png").chopped(1));
    drawing.open("cut.png");
    program.waitForText("Invalid picture The file cut.png is cut short.");
    program.keys({"Return"});
    drawing.waitForTitle("large.png");
    drawing.waitForCanvas(large);
    drawing.save("large.bmp");
    drawing.waitForTitle("large.bmp");
    EXPECT_TRUE(QImage(drawing.path("large.bmp")) == large);
}

} // namespace schemlet
