#include "shell/toolbox.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Toolbox, FollowsTheMouseFromAClickOrAMoveOverItToTheNextOne)
{
    Rig rig;
    const auto placeAfterMove = [&](float x, float y) {
        rig.mouseMove(0, x, y);
        return std::pair(rig.window.at(control::Frame2).left, rig.window.at(control::Frame2).top);
    };
    EXPECT_EQ(placeAfterMove(5000, 6000), std::pair(0.0, 0.0));
    rig.click(control::Label1);
    EXPECT_EQ(placeAfterMove(5000, 6000), std::pair(5000.0, 6000.0));
    rig.hover(control::Label1); // only the frame itself counts
    rig.hover("Image1");
    rig.hover(control::Frame2);
    EXPECT_EQ(placeAfterMove(100, 200), std::pair(5000.0, 6000.0));
    rig.hover(control::Frame2);
    EXPECT_EQ(placeAfterMove(100, 200), std::pair(100.0, 200.0));
}

TEST(View, EachTogglesItsOwnMark)
{
    Rig rig;
    for (const auto& [item, control, mark] : {std::tuple{"lll", control::Toolbar1, "lll"},
                                              {"sss", control::statusBar, "sss"},
                                              {"toolbox", control::Frame2, "toolbox"},
                                              {"Image7", control::Frame2, "toolbox"}}) {
        for (const bool shown : {false, true}) {
            rig.click(item);
            EXPECT_EQ(rig.window.visible(control), shown) << item;
            EXPECT_EQ(rig.window.at(mark).checked, shown) << item;
        }
    }
    // The toolbar's button flips the mark on its own, the menu's command sets it.
    rig.window.setChecked("toolbox", false);
    for (const auto& [button, shown] : {std::pair{"ToolBox", false}, {"toolbox", true}}) {
        rig.click(button);
        EXPECT_EQ(rig.window.visible(control::Frame2), shown);
        EXPECT_TRUE(rig.window.checked("toolbox"));
    }
}

} // namespace schemlet
