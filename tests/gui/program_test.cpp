#include "tests/gui/pixels.h"
#include "tests/gui/program.h"
#include "tests/support/sample_files.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <gtest/gtest.h>

namespace schemlet {

// Drawings, from the start to the disk. Places are canvas pixels: the pen starts at (106, 100), a step is 3 1/3 pixels
// long.

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

TEST(Program, StartsWithABlinkingMarkerAndLaysSolidWireWithShiftAndOnTheNumberPadTooButForNoOtherKey)
{
    Program program;
    program.keys("ctrl+t"); // without the toolbox
    const QRect marker(100, 70, 24, 28);
    for (const bool shown : {true, false, true}) {
        waitUntil("the marker's next blink on an otherwise empty canvas", [&] {
            const QRect ink = inkedPart(program.canvas());
            return marker.contains(ink) == shown && ink.isEmpty() != shown;
        });
    }
    EXPECT_GT(program.canvas().width(), 900);
    EXPECT_GT(program.canvas().height(), 600);

    program.keys("x q 5 space Tab Home F7 ctrl+z alt+x alt+i Shift_L Control_L Super_L percent parenleft");
    program.click(2, 500, 300);
    program.click(8, 500, 300);
    program.keys("Right", 10);
    program.keys("shift+Right", 5);
    program.keys("KP_Right", 5);
    waitUntil("the end of the wire", [&] { return program.inked(171, 100); });
    const QImage below = program.canvas().copy(0, 99, 800, 500);
    EXPECT_LE(inkedPart(below).right(), 173);
    EXPECT_EQ(inkedPart(below).height(), 3);
    QImage solid(QSize(66, 3), below.format());
    solid.fill(Qt::black);
    EXPECT_TRUE(below.copy(106, 0, 66, 3) == solid);
}

TEST(Program, JumperQuestionIsNotForTheWalksArrowKeysAndGivesTheKeyboardBack)
{
    Program program;
    program.keys("j");
    program.keys("Right", 6);
    program.keys("Down", 6);
    program.keys("Left", 3);
    program.keys("Up", 9);
    program.waitForWindow("POINT (or) LINE AHEAD...");
    program.keys("Up", 3); // the walk's last ones, which would move the focus from Yes to No
    program.answer("POINT (or) LINE AHEAD...", "Return");
    program.keys("Up");
    waitUntil("the hop's bulge, and the next step",
              [&] { return program.inked(122, 95) && !program.inked(116, 104) && program.inked(116, 87); });
}

TEST(Program, ValuesAndSourcesAreTypedAndDrawnByKeyboardAlone)
{
    Program program;
    program.open("r", "RESISTANCE");
    program.type("47");
    program.answer("RESISTANCE", "Return");
    waitUntil("the zig-zag and its value",
              [&] { return program.inked(169, 113) && inkedPixels(program.canvas().copy(137, 116, 14, 10)) > 5; });
    EXPECT_LE(inkedPixels(program.canvas().copy(153, 116, 14, 10)), 5); // not "4710": the preset was selected

    const auto waitForPanel = [&](bool shown) {
        waitUntil("the panel", [&] { return program.shows("panel", "Supply and battery") == shown; });
    };
    program.keys("s");
    waitForPanel(true);
    program.keys("Right Right Right"); // the canvas still has the keyboard
    waitUntil("wire", [&] { return program.inked(182, 100); });
    program.keys("alt+v 1 2 Return"); // Alt+V is the View menu's too
    waitUntil("the circle", [&] { return program.inked(197, 87) && program.inked(197, 113); });
    waitForPanel(false);
    program.keys("Right Right");
    waitUntil("wire from the far end", [&] { return program.inked(219, 100); });

    const QImage before = program.canvas();
    program.keys("b alt+n 5 Escape");
    waitForPanel(false);
    program.keys("Down");
    waitUntil("wire and nothing else", [&] {
        return program.inked(221, 103) && before.copy(0, 0, 217, 300) == program.canvas().copy(0, 0, 217, 300);
    });
}

TEST(Program, MouseToolsDrawEveryPointOfWhatOutlivesSmallerAndLargerWindows)
{
    Program program;
    program.keys("ctrl+t"); // without the toolbox
    program.click(3, 500, 550);
    program.clickMenus({"Pencil"});
    program.waitForText("Pencil"); // the menu no longer holds the mouse
    QList<QPoint> places{{200, 400}};
    QString fastStroke;
    for (int i = 1; i < 2000; ++i) {
        places << QPoint(200 + 3 * (i % 200), 400 + 12 * (i / 200) + i % 2 * 7);
        const QPoint step = places.last() - places.at(i - 1);
        fastStroke += QString("mousemove_relative -- %1 %2 ").arg(step.x()).arg(step.y());
    }
    program.moveMouse(200, 400);
    program.xdotool("mousedown 1");
    program.waitForText("3000, 6000"); // the window manager has let the press through
    program.xdotool(fastStroke + "mouseup 1");
    waitUntil("every point, and the marker at the end", [&] {
        const QImage canvas = program.canvas();
        return std::ranges::all_of(places, [&](QPoint place) { return isInked(canvas, place.x(), place.y()); }) &&
               inkedPixels(canvas.copy(802, 495, 8, 16)) > 0;
    });

    const QImage before = program.canvas().copy(0, 300, 900, 300);
    program.resize(600, 300);
    program.resize(1100, 800);
    waitUntil("the same, and paper in the part that is new",
              [&] { return program.canvas().copy(0, 300, 900, 300) == before && !program.inked(1025, 500); });
    const QRect apart(60, 100, 100, 60); // from the marker
    program.moveMouse(60, 100);
    program.xdotool("mousedown 1 mousemove_relative 40 20");
    waitUntil("another stroke", [&] { return program.inked(80, 110); });
    const QImage stroke = program.canvas().copy(apart);
    EXPECT_TRUE(program.uncoveredCanvas().copy(apart) == stroke) << "strokes were seen to vanish";
    program.xdotool("mouseup 1");
    program.keys("ctrl+l");
    program.drag(1000, 400, 1050, 600);
    program.keys("Right Right"); // the pen went along to the last press of the left button
    waitUntil("a line and wire", [&] { return program.inked(1025, 500) && program.inked(1004, 399); });
}

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

int main(int argc, char* argv[])
{
    using namespace schemlet;
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const Desk desk;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
