#include "canvas/mouse.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Mouse, LeftDragsDrawWithTheToolInHandAndMovePenAndMarker)
{
    struct Case {
        Name tool;
        int button;
        std::string drawn;
    };
    for (const Case& c :
         {Case{"", button::left, ""}, Case{"linee", button::left, "line 1000 1000 3000 2000\n"},
          Case{"rectan", button::left, "box 1000 1000 3000 2000\n"},
          Case{"pencil1", button::left, "line 1000 1000 2000 1500\n"}, Case{"pencil1", button::right, ""},
          Case{"linee", button::right, ""}, Case{"rectan", button::middle, ""}}) {
        SCOPED_TRACE(std::string(c.tool) + std::to_string(c.button));
        Bench bench;
        bench.click(c.tool);
        bench.mouseDown(c.button, 1000, 1000);
        bench.mouseMove(c.button, 2000, 1500);
        bench.mouseUp(c.button, 3000, 2000);
        EXPECT_EQ(bench.outcome(),
                  c.button == button::left ? c.drawn + "pen 1000 1000, marker 3000 1700" : std::string(nothing));
        EXPECT_EQ(bench.form.mouseUpX, 3000);
        EXPECT_EQ(bench.form.mouseUpY, 2000);
        EXPECT_EQ(bench.form.savedMark, 0);
        EXPECT_EQ(bench.window.poppedUp, c.button == button::right ? "rc" : "");
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

TEST(Mouse, PencilAndEraserInOneDragDrawAndBlotOut)
{
    Bench bench;
    bench.form.canvasBackColor = 0xFFFF00;
    bench.click("pencil1");
    bench.type('e');
    bench.mouseDown(button::left, 900, 900);
    bench.mouseMove(button::left, 1000, 1000);
    EXPECT_EQ(bench.drawn(), "line 900 900 1000 1000\ncircle 1000 1000 100\n"
                             "circle 990 1000 100\ncircle 1010 1000 100\ncircle 1000 990 100\ncircle 1000 1010 100\n"
                             "circle 980 1000 100\ncircle 1020 1000 100\ncircle 1000 980 100\ncircle 1000 1020 100\n"
                             "circle 970 1000 100\ncircle 1030 1000 100\ncircle 1000 970 100\ncircle 1000 1030 100\n");
    EXPECT_EQ(bench.surface.foreColor, 0xFFFF00U); // stays: the next free-hand stroke is invisible
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
