#include "tests/gui/pixels.h"
#include "tests/gui/program.h"
#include "tests/support/sample_files.h"

#include <QGuiApplication>
#include <algorithm>
#include <gtest/gtest.h>

namespace schemlet {

// Drawings, from the first wire to the file. Places are canvas pixels. The pen starts at (106, 100), and a step is
// 3 1/3 pixels long.

namespace {

/// Presses a shortcut and answers the question that it opens.
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

TEST(Program, BlinksItsMarkerAndDrawsSolidWireForArrowKeysOnly)
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

TEST(Program, JumperQuestionIgnoresTheWalksArrowKeysAndReturnsTheKeyboard)
{
    Program program;
    program.keys("j");
    program.keys("Right", 6);
    program.keys("Down", 6);
    program.keys("Left", 3);
    program.keys("Up", 9);
    program.waitForWindow("POINT (or) LINE AHEAD...");
    program.keys("Up", 3); // still of the walk; they would move the focus from Yes to No
    program.answer("POINT (or) LINE AHEAD...", "Return");
    program.keys("Up");
    waitUntil("the hop's bulge, and the next step",
              [&] { return program.inked(122, 95) && !program.inked(116, 104) && program.inked(116, 87); });
}

TEST(Program, DrawsAndUndoesTypedValuesByKeyboardAlone)
{
    Program program;
    program.open("r", "RESISTANCE");
    program.type("47");
    program.answer("RESISTANCE", "Return");
    waitUntil("the zig-zag and its value",
              [&] { return program.inked(169, 113) && inkedPixels(program.canvas().copy(137, 116, 14, 10)) > 5; });
    EXPECT_LE(inkedPixels(program.canvas().copy(153, 116, 14, 10)), 5); // not "4710": the preset was selected

    const auto waitForPanel = [&](bool shown) { // at the bottom of the canvas
        waitUntil("the panel", [&] { return (inkedPart(program.canvas()).bottom() > 400) == shown; });
    };
    program.keys("s");
    waitForPanel(true);
    program.keys("Right Right Right"); // the canvas still has the keyboard
    waitUntil("wire", [&] { return program.inked(182, 100); });
    program.keys("alt+v 1 ctrl+z 2 Return"); // Alt+V could also open the View menu, and Ctrl+Z undo the wire
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

    const auto waitForResistance = [&](bool shown) {
        waitUntil("the resistance", [&] { return program.inked(169, 113) == shown; });
    };
    program.xdotool("keydown ctrl keydown z");
    waitForResistance(false);
    program.xdotool("keyup z keyup ctrl");
    program.keys("ctrl+y");
    waitForResistance(true);
    program.keys("s alt+v");
    waitForPanel(true);
    program.keys("ctrl+y ctrl+shift+z Escape"); // these go to the text box
    waitForPanel(false);
    EXPECT_FALSE(program.inked(182, 100));
    program.keys("ctrl+shift+z");
    waitUntil("the wire", [&] { return program.inked(182, 100); });
}

TEST(Program, PencilDrawsEveryPointAndInkOutlivesChangesOfTheWindowsSize)
{
    Program program;
    program.keys("ctrl+t"); // without the toolbox
    program.click(3, 500, 550);
    const auto waitForMenu = [&](bool shown) {
        waitUntil("the menu", [&] { return program.inked(500, 560) == shown; });
    };
    waitForMenu(true);
    program.keys("p");
    waitForMenu(false); // it has released the mouse
    QList<QPoint> places{{200, 400}};
    QString fastStroke;
    for (int i = 1; i < 2000; ++i) {
        places << QPoint(200 + 3 * (i % 200), 400 + 12 * (i / 200) + i % 2 * 7);
        const QPoint step = places.last() - places.at(i - 1);
        fastStroke += QString("mousemove_relative -- %1 %2 ").arg(step.x()).arg(step.y());
    }
    program.moveMouse(200, 400);
    program.xdotool("mousedown 1");
    program.moveMouse(198, 398);
    waitUntil("the press has passed the window manager, and draws", [&] { return program.inked(198, 398); });
    program.moveMouse(200, 400);
    program.xdotool(fastStroke + "mouseup 1");
    waitUntil("every point, and the marker at the end", [&] {
        const QImage canvas = program.canvas();
        return std::ranges::all_of(places, [&](QPoint place) { return isInked(canvas, place.x(), place.y()); }) &&
               inkedPixels(canvas.copy(802, 495, 8, 16)) > 0;
    });

    const QImage before = program.canvas().copy(0, 300, 900, 300);
    program.resize(600, 400);
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
    program.keys("Right Right"); // the pen was moved by the last press of the left button
    waitUntil("a line and wire", [&] { return program.inked(1025, 500) && program.inked(1004, 399); });
}

TEST(Program, SavesAndOpensEveryPixel)
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

    program.keys("Up", 9);
    waitUntil("wire that is not saved", [&] { return program.inked(300, 280); });
    command(program, "ctrl+o", "n");
    choose(program, "Open", "first.JPEG");
    waitForCanvas(first);
    program.drag(320, 320, 340, 340);
    waitUntil("a box in the box", [&] { return program.inked(330, 339); });
    const QString path = program.home().filePath("second.png");
    store(path, "to be replaced");
    program.keys("ctrl+s");
    choose(program, "Save", "second.png");
    waitUntil("the question whether to replace it", [&] { return Program::heightsOf("Save").size() == 2; });
    program.keys("alt+y");
    program.waitForWindow("- Schemlet 2.0 second.png");
    const QImage second(path);
    waitForCanvas(second);
    EXPECT_TRUE(second.copy(0, 0, 318, 318) == first.copy(0, 0, 318, 318));

    command(program, "ctrl+x", "y");
    choose(program, "Save", "third.png");
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(program.filesAtHome(), QStringList({"first.JPEG", "second.png", "third.png"}));
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
