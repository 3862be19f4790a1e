#include "canvas/mouse.h"

#include "canvas/keyboard.h"
#include "platform/event.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

void drag(Form1& form, int button, float x1, float y1, float x2, float y2)
{
    mouseDown(form, button, x1, y1);
    mouseMove(form, button, x2, y2);
    mouseUp(form, button, x2, y2);
}

} // namespace

TEST(Mouse, LeftDragPutsThePenDownAndTheMarkerAtTheRelease)
{
    Bench bench;
    drag(bench.form, button::left, 1000, 1000, 3000, 2000);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.pen(), "1000 1000");
    EXPECT_EQ(bench.marker(), "3000 1700");
    EXPECT_EQ(bench.form.mouseUpX, 3000);
    EXPECT_EQ(bench.form.savedMark, 0);
}

TEST(Mouse, OtherButtonsMoveAndDrawNothing)
{
    for (const int other : {button::right, button::middle}) {
        Bench bench;
        pencil1(bench.form);
        drag(bench.form, other, 1000, 1000, 3000, 2000);
        linee(bench.form);
        drag(bench.form, other, 1000, 1000, 3000, 2000);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.pen(), "1600 1500");
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.form.mouseUpY, 2000);
        EXPECT_EQ(bench.form.savedMark, 0);
        EXPECT_EQ(bench.window.poppedUp, other == button::right ? "rc" : "");
    }
}

TEST(Mouse, LineAndRectangleAreDrawnAtTheRelease)
{
    Bench bench;
    linee(bench.form);
    mouseDown(bench.form, button::left, 1000, 1000);
    mouseMove(bench.form, button::left, 3000, 2000);
    EXPECT_EQ(bench.drawn(), "");
    mouseUp(bench.form, button::left, 3000, 2000);
    EXPECT_EQ(bench.drawn(), "line 1000 1000 3000 2000\n");
    EXPECT_EQ(bench.pen(), "1000 1000");

    rectan(bench.form);
    drag(bench.form, button::left, 1000, 1000, 3000, 2000);
    EXPECT_EQ(bench.drawn(), "box 1000 1000 3000 2000\n");
}

TEST(Mouse, ALineBeforeAnyPressStartsInTheCorner)
{
    Bench bench;
    linee(bench.form);
    mouseUp(bench.form, button::left, 300, 450);
    EXPECT_EQ(bench.drawn(), "line 0 0 300 450\n");
}

TEST(Mouse, PencilJoinsEveryMotionWhileTheLeftButtonAloneIsHeld)
{
    Bench bench;
    pencil1(bench.form);
    mouseDown(bench.form, button::left, 0, 0);
    mouseMove(bench.form, button::left, 15, 30);
    mouseMove(bench.form, button::left, 45, 30);
    mouseMove(bench.form, button::left + button::right, 90, 90);
    mouseMove(bench.form, 0, 90, 90);
    EXPECT_EQ(bench.drawn(), "line 0 0 15 30\nline 15 30 45 30\n");
}

TEST(Mouse, PencilAndEraserInOneDragDrawAndBlotOut)
{
    Bench bench;
    bench.form.canvasBackColor = 0xFFFF00;
    pencil1(bench.form);
    keyPress(bench.form, 'e');
    mouseDown(bench.form, button::left, 900, 900);
    mouseMove(bench.form, button::left, 1000, 1000);
    EXPECT_EQ(bench.drawn(), "line 900 900 1000 1000\n"
                             "circle 1000 1000 100\n"
                             "circle 990 1000 100\ncircle 1010 1000 100\n"
                             "circle 1000 990 100\ncircle 1000 1010 100\n"
                             "circle 980 1000 100\ncircle 1020 1000 100\n"
                             "circle 1000 980 100\ncircle 1000 1020 100\n"
                             "circle 970 1000 100\ncircle 1030 1000 100\n"
                             "circle 1000 970 100\ncircle 1000 1030 100\n");
    EXPECT_EQ(bench.surface.foreColor, 0xFFFF00U); // stays: the next free-hand stroke is invisible
}

TEST(Mouse, EraserOutlineFollowsTheMouseAndGoesWithTheNextMoveAfterEraseMode)
{
    Bench bench;
    const auto& outline = bench.window.at(control::Shape1);
    mouseMove(bench.form, 0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
    keyPress(bench.form, 'e');
    mouseMove(bench.form, 0, 1000, 1000);
    EXPECT_TRUE(outline.visible);
    EXPECT_EQ(outline.left, 775);
    EXPECT_EQ(outline.top, 850);
    EXPECT_EQ(bench.drawn(), ""); // no button, no ink
    keyPress(bench.form, 'e');
    EXPECT_TRUE(outline.visible);
    mouseMove(bench.form, 0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
}

TEST(Mouse, EveryMotionPutsBackTheHelpHintInEraseModeToo)
{
    Bench bench;
    keyPress(bench.form, 'e');
    bench.window.setText(control::sb, "something else");
    mouseMove(bench.form, 0, 1000, 1000);
    EXPECT_EQ(bench.window.at(control::sb).text, " Press F1 for Help ");
}

TEST(Tools, AtMostOneIsInHand)
{
    Bench bench;
    const auto inHand = [&] { return std::tuple(bench.form.lineTool, bench.form.rectTool, bench.form.pencilTool); };
    EXPECT_EQ(inHand(), std::tuple(0, 0, 0));
    linee(bench.form);
    EXPECT_EQ(inHand(), std::tuple(1, 0, 0));
    rectan(bench.form);
    EXPECT_EQ(inHand(), std::tuple(0, 1, 0));
    pencil1(bench.form);
    EXPECT_EQ(inHand(), std::tuple(0, 0, 1));
    pencil1(bench.form);
    EXPECT_EQ(inHand(), std::tuple(0, 0, 1));
}
