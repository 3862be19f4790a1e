#include "canvas/mouse.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Mouse, AnyButtonThatComesUpMarksTheDrawingChanged)
{
    for (const int held : {button::left, button::right, button::middle}) {
        Bench bench;
        bench.mouseDown(held, 1000, 1000);
        EXPECT_EQ(bench.form.savedMark, 100);
        bench.mouseUp(held, 1000, 1000);
        EXPECT_EQ(bench.form.savedMark, 0);
        EXPECT_EQ(bench.window.poppedUp, held == button::right ? "rc 1000 1000" : "");
        bench.click(control::rc); // by a key
        EXPECT_EQ(bench.window.poppedUp, "rc " + bench.pen());
    }
}

TEST(Mouse, ALineBeforeAnyPressStartsInTheCorner)
{
    Bench bench;
    bench.click("linee");
    bench.mouseUp(button::left, 300, 450);
    EXPECT_EQ(bench.drawn(), "line 0 0 300 450\n");
}

TEST(Mouse, PencilJoinsEveryMotionWhileTheLeftButtonAloneIsHeld)
{
    Bench bench;
    bench.click("pencil1");
    bench.mouseDown(button::left, 0, 0);
    bench.mouseMove(button::left, 15, 30);
    bench.mouseMove(button::left, 45, 30);
    bench.mouseMove(button::left + button::right, 90, 90);
    bench.mouseMove(0, 90, 90);
    EXPECT_EQ(bench.drawn(), "line 0 0 15 30\nline 15 30 45 30\n");
}

TEST(Mouse, EraserOutlineFollowsTheMouseAndGoesWithTheNextMoveAfterEraseMode)
{
    Bench bench;
    const auto& outline = bench.window.at(control::Shape1);
    bench.mouseMove(0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
    bench.type('e');
    bench.window.setText(control::sb, "something else");
    bench.mouseMove(0, 1000, 1000);
    EXPECT_TRUE(outline.visible);
    EXPECT_EQ(outline.left, 775);
    EXPECT_EQ(outline.top, 850);
    EXPECT_EQ(bench.drawn(), "");                                        // no button, no ink
    EXPECT_EQ(bench.window.at(control::sb).text, " Press F1 for Help "); // in erase mode too
    bench.type('e');
    EXPECT_TRUE(outline.visible);
    bench.mouseMove(0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
}
