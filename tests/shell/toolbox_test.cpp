#include "shell/toolbox.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Toolbox, FollowsTheMouseFromAClickOrAMoveOverItToTheNextOne)
{
    Bench bench;
    const auto placeAfterMove = [&](float x, float y) {
        bench.mouseMove(0, x, y);
        return std::pair(bench.window.at(control::Frame2).left, bench.window.at(control::Frame2).top);
    };
    EXPECT_EQ(placeAfterMove(5000, 6000), std::pair(0.0, 0.0));
    bench.click(control::Label1);
    EXPECT_EQ(placeAfterMove(5000, 6000), std::pair(5000.0, 6000.0));
    bench.hover(control::Label1); // only the frame itself counts
    bench.hover("Image1");
    bench.hover(control::Frame2);
    EXPECT_EQ(placeAfterMove(100, 200), std::pair(5000.0, 6000.0));
    bench.hover(control::Frame2);
    EXPECT_EQ(placeAfterMove(100, 200), std::pair(100.0, 200.0));
}

TEST(View, EachTogglesItsOwnMark)
{
    Bench bench;
    for (const auto& [item, control, mark] : {std::tuple{"lll", control::Toolbar1, "lll"},
                                              {"sss", control::statusBar, "sss"},
                                              {"toolbox", control::Frame2, "toolbox"},
                                              {"Image7", control::Frame2, "toolbox"}}) {
        for (const bool shown : {false, true}) {
            bench.click(item);
            EXPECT_EQ(bench.window.visible(control), shown) << item;
            EXPECT_EQ(bench.window.checked(mark), shown) << item;
        }
    }
    // The toolbar's button flips the mark on its own, the menu's command sets it.
    bench.window.setChecked("toolbox", false);
    for (const auto& [button, shown] : {std::pair{"ToolBox", false}, {"toolbox", true}}) {
        bench.click(button);
        EXPECT_EQ(bench.window.visible(control::Frame2), shown);
        EXPECT_TRUE(bench.window.checked("toolbox"));
    }
}
