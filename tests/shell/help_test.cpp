#include "shell/help.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

/// With the help window shown and its box clicked, if that is wanted.
struct HelpBench : Bench {
    explicit HelpBench(bool sliding)
    {
        click("htu");
        if (sliding) {
            click(form2::control::Check1, form2::window);
        }
    }
    void slide(int ticks)
    {
        for (; ticks > 0; --ticks) {
            tick(form2::control::Timer2, form2::window);
        }
    }
};

} // namespace

TEST(HelpWindow, ShowsItselfOnceAtStartAndLeavesTheKeyboardAlone)
{
    Bench bench;
    EXPECT_EQ(bench.window.intervals.at("Timer1"), 100);
    for (int i = 0; i < 2; ++i) {
        bench.tick(control::Timer1);
        EXPECT_EQ(bench.window.intervals.at("Timer1"), 0);
        EXPECT_EQ(bench.help.timesShownWithoutKeyboard, 1);
    }
    EXPECT_EQ(bench.help.timesShown, 0);
}

TEST(HelpWindow, SlidesOpenInStepsWhoseLastOneIsShorter)
{
    HelpBench bench(true);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 100);
    bench.slide(17);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 100);
    bench.slide(1);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 0);
    EXPECT_EQ(bench.help.heights, (std::vector{3210, 3310, 3410, 3510, 3610, 3710, 3810, 3910, 4010, 4110,
                                               4210, 4310, 4410, 4510, 4610, 4710, 4810, 4910, 5010, 5055}));
    bench.click(form2::control::Check1, form2::window);
    EXPECT_EQ(bench.help.height(), 3210);
}

TEST(HelpWindow, OpensAnewWhenItIsCollapsedInTheMiddleOfASlide)
{
    HelpBench bench(true);
    bench.slide(5);
    bench.click(form2::control::Check1, form2::window);
    EXPECT_EQ(bench.help.height(), 3210);
    bench.slide(1);
    EXPECT_EQ(bench.help.height(), 3310);
}

TEST(HelpWindow, LabelTicksTheBoxAndDoesWhatTheBoxDoes)
{
    HelpBench bench(false);
    for (const auto& [ticked, height] : {std::pair{1, 3310}, {0, 3210}, {1, 3310}}) {
        bench.click(form2::control::Label23, form2::window);
        EXPECT_EQ(bench.help.value(form2::control::Check1), ticked);
        EXPECT_EQ(bench.help.height(), height);
    }
}

TEST(HelpWindow, LoadsOnceSoItShowsAgainAsItWasLeft)
{
    for (const int openFlag : {0, 1}) {
        Bench bench;
        bench.form.helpOpen = openFlag;
        bench.click("hheellpp");
        EXPECT_EQ(bench.help.height(), 3210);
        EXPECT_EQ(bench.help.intervals["Timer2"], openFlag * 100); // slides open by itself if it is told to
        bench.tick(form2::control::Timer2, form2::window);
        bench.click("htu");
        EXPECT_EQ(bench.help.height(), 3310);
        EXPECT_EQ(bench.help.timesShown, 2);
    }
}

TEST(Windows, AreHiddenByTheirButtonsAndFrames)
{
    Bench bench;
    bench.click("about");
    EXPECT_EQ(bench.about.timesShown, 1);
    EXPECT_NE(bench.about.at(form3::control::Picture1).picture, nullptr);
    bench.click(form3::control::Command1, form3::window);
    bench.click(form3::control::Command2, form3::window);
    bench.click(form2::control::Command1, form2::window);
    for (const Name window : {form2::window, form3::window, form4::window}) {
        bench.close(window);
    }
    EXPECT_EQ(bench.about.timesHidden, 3);
    EXPECT_EQ(bench.help.timesHidden, 2);
    EXPECT_EQ(bench.output.timesHidden, 1);
}
