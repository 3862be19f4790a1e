#include "canvas/mouse.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Mouse, AnyButtonThatComesUpMarksTheDrawingChanged)
{
    for (const int held : {button::left, button::right, button::middle}) {
        Rig rig;
        rig.mouseDown(held, 1000, 1000);
        EXPECT_EQ(rig.form.savedMark, 100);
        rig.mouseUp(held, 1000, 1000);
        EXPECT_EQ(rig.form.savedMark, 0);
        EXPECT_EQ(rig.window.poppedUp, held == button::right ? "rc 1000 1000" : "");
        rig.click(control::rc); // by a key
        EXPECT_EQ(rig.window.poppedUp, "rc " + rig.pen());
    }
}

TEST(Mouse, ALineBeforeAnyPressStartsInTheCorner)
{
    Rig rig;
    rig.click("linee");
    rig.mouseUp(button::left, 300, 450);
    EXPECT_EQ(rig.drawn(), "line 0 0 300 450\n");
}

TEST(Mouse, PencilJoinsEveryMotionWhileTheLeftButtonAloneIsHeld)
{
    Rig rig;
    rig.click("pencil1");
    rig.mouseDown(button::left, 0, 0);
    rig.mouseMove(button::left, 15, 30);
    rig.mouseMove(button::left, 45, 30);
    rig.mouseMove(button::left + button::right, 90, 90);
    rig.mouseMove(0, 90, 90);
    EXPECT_EQ(rig.drawn(), "line 0 0 15 30\nline 15 30 45 30\n");
}

TEST(Mouse, EraserOutlineFollowsTheMouseAndGoesWithTheNextMoveAfterEraseMode)
{
    Rig rig;
    const auto& outline = rig.window.at(control::Shape1);
    rig.mouseMove(0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
    rig.type('e');
    rig.window.setText(control::sb, "something else");
    rig.mouseMove(0, 1000, 1000);
    EXPECT_TRUE(outline.visible);
    EXPECT_EQ(outline.left, 775);
    EXPECT_EQ(outline.top, 850);
    EXPECT_EQ(rig.drawn(), "");                                        // no button, no ink
    EXPECT_EQ(rig.window.at(control::sb).text, " Press F1 for Help "); // in erase mode too
    rig.type('e');
    EXPECT_TRUE(outline.visible);
    rig.mouseMove(0, 1000, 1000);
    EXPECT_FALSE(outline.visible);
}

} // namespace schemlet
