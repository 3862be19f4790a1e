#include "tests/gui/pixels.h"
#include "tests/gui/program.h"

#include <QGuiApplication>
#include <algorithm>
#include <gtest/gtest.h>
#include <string_view>

namespace schemlet {

// Places are canvas pixels: the pen starts at (106, 100), a step is 3 1/3 pixels long.

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
    for (const std::string_view reply : {"Return", "n", "its frame"}) {
        SCOPED_TRACE(reply);
        program.keys("Right", 6);
        program.keys("Down", 6);
        program.keys("Left", 3);
        program.keys("Up", 9);
        program.waitForWindow("POINT (or) LINE AHEAD...");
        program.keys("Up", 3); // the walk's last ones, which would move the focus from Yes to No
        if (reply == "its frame") {
            program.closeActiveWindow();
        } else {
            program.keys(reply.data());
        }
        program.waitForMainWindow();
        const bool yes = reply == "Return";
        program.keys(yes ? "Up" : "Left");
        waitUntil("the hop's bulge or wire through the gap, and the next step", [&] {
            return program.inked(122, 95) == yes && program.inked(116, 104) != yes &&
                   (yes ? program.inked(116, 87) : program.inked(113, 103));
        });
        program.keys("ctrl+n");
        program.answer("Schemlet 2.0", "n");
        waitUntil("clean paper", [&] { return !program.inked(116, 100); });
    }
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

TEST(Program, SourceIsChosenAndDrawnByMouse)
{
    Program program;
    program.keys("b");
    program.clickOn("radio button", "Positive");
    program.keys("9");
    program.clickOn("push button", "Cancel");
    waitUntil("no panel", [&] { return !program.shows("panel", "Supply and battery"); });
    program.keys("b");
    (void)program.placeOf("panel", "Supply and battery");
    EXPECT_FALSE(program.find("radio button", "Positive")->is(Accessible::checked));
    program.clickOn("radio button", "Negative");
    program.keys("9");
    program.clickOn("push button", "OK");
    program.keys("Right Right");
    waitUntil("the plates, and wire from the far end",
              [&] { return program.inked(113, 110) && program.inked(106, 94) && program.inked(119, 100); });
    EXPECT_FALSE(program.inked(106, 112)); // the short plate comes first
}

TEST(Program, MouseToolsDrawEveryPointOfWhatOutlivesSmallerAndLargerWindows)
{
    Program program;
    program.keys("ctrl+t ctrl+r");
    program.drag(300, 320, 400, 360);
    waitUntil("an empty box", [&] {
        return program.inked(399, 340) && program.inked(350, 359) && program.inked(300, 340) &&
               !program.inked(350, 340);
    });
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
    program.keys("ctrl+l");
    program.drag(1000, 400, 1050, 600);
    program.keys("Right Right"); // the pen went along to the last press of the left button
    waitUntil("a line and wire", [&] { return program.inked(1025, 500) && program.inked(1004, 399); });
}

TEST(Program, EraserWipesOnlyInEraseModeAndTheMouseGoesThroughItsLabel)
{
    Program program;
    const int middle = program.canvas().width() / 2;
    program.keys("ctrl+r");
    program.drag(middle + 60, 20, middle - 60, 200);
    waitUntil("a box", [&] { return program.inked(middle, 199) && program.inked(middle, 20); });
    program.keys("e Right Right Right");
    program.waitForText("You are in Erase Mode.*");
    waitUntil("the label over the box", [&] { return program.pixel(middle, 20) != QColor(Qt::black); });
    program.moveMouse(middle - 60, 130);
    waitUntil("the outline", [&] { return program.inked(middle - 59, 120); });
    program.drag(middle - 20, 20, middle + 20, 20);
    program.drag(middle - 70, 130, middle - 40, 130);
    program.keys("e");
    program.moveMouse(middle, 400);
    waitUntil("clean paper where the eraser was, and no label", [&] {
        return !program.inked(middle, 20) && !program.inked(middle - 60, 130) && program.inked(middle - 50, 20) &&
               program.inked(middle + 59, 130) && !program.shows("label", "You are in Erase Mode.*");
    });
    EXPECT_FALSE(program.inked(middle + 68, 20)); // arrow keys laid no wire
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
