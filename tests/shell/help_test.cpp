#include "shell/help.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

struct HelpBench : Rig {
    HelpBench() { click("hheellpp"); }
    int heightAfterClick(Name name)
    {
        click(name, form2::window);
        return help.height();
    }
    int heightAfterTicks(int ticks)
    {
        for (; ticks > 0; --ticks) {
            tick(form2::control::Timer2, form2::window);
        }
        return help.height();
    }
};

} // namespace

TEST(HelpWindow, ShowsItselfOnceAtStartAndLeavesTheKeyboardAlone)
{
    Rig rig;
    EXPECT_EQ(rig.window.intervals.at("Timer1"), 100);
    for (int i = 0; i < 2; ++i) {
        rig.tick(control::Timer1);
        EXPECT_EQ(rig.window.intervals.at("Timer1"), 0);
        EXPECT_EQ(rig.help.timesShownWithoutKeyboard, 1);
    }
    EXPECT_EQ(rig.help.timesShown, 0);
}

TEST(HelpWindow, SlidesOpenInStepsWhoseLastOneIsShorter)
{
    HelpBench rig;
    EXPECT_EQ(rig.help.height(), 3210);
    EXPECT_EQ(rig.heightAfterClick(form2::control::Check1), 3310);
    EXPECT_EQ(rig.help.intervals.at("Timer2"), 100);
    EXPECT_EQ(rig.heightAfterTicks(17), 5010);
    EXPECT_EQ(rig.help.intervals.at("Timer2"), 100);
    EXPECT_EQ(rig.heightAfterTicks(1), 5055);
    EXPECT_EQ(rig.help.intervals.at("Timer2"), 0);
    rig.click("htu"); // shows again as it was left
    EXPECT_EQ(rig.help.height(), 5055);
    EXPECT_EQ(rig.help.timesShown, 2);

    EXPECT_EQ(rig.heightAfterClick(form2::control::Check1), 3210);
    EXPECT_EQ(rig.heightAfterClick(form2::control::Check1), 3310);
    EXPECT_EQ(rig.heightAfterTicks(5), 3810);
    EXPECT_EQ(rig.heightAfterClick(form2::control::Check1), 3210);
    EXPECT_EQ(rig.heightAfterTicks(1), 3310); // the slide goes on
}

TEST(HelpWindow, LabelTicksTheBoxAndDoesWhatTheBoxDoes)
{
    HelpBench rig;
    for (const auto& [ticked, height] : {std::pair{1, 3310}, {0, 3210}, {1, 3310}}) {
        EXPECT_EQ(rig.heightAfterClick(form2::control::Label23), height);
        EXPECT_EQ(rig.help.value(form2::control::Check1), ticked);
    }
}

TEST(Windows, AreHiddenByTheirButtonsAndFrames)
{
    Rig rig;
    rig.click("about");
    EXPECT_EQ(rig.about.timesShown, 1);
    EXPECT_NE(rig.about.at(form3::control::Picture1).picture, nullptr);
    rig.click(form3::control::Command1, form3::window);
    rig.click(form3::control::Command2, form3::window);
    rig.click(form2::control::Command1, form2::window);
    for (const Name window : {form2::window, form3::window, form4::window}) {
        rig.close(window);
    }
    EXPECT_EQ(rig.about.timesHidden, 3);
    EXPECT_EQ(rig.help.timesHidden, 2);
    EXPECT_EQ(rig.output.timesHidden, 1);
}

} // namespace schemlet
