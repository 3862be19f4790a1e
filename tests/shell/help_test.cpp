#include "shell/help.h"

#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

void click(Bench& bench, Name window, Name control)
{
    deliver(bench.form, {.kind = Event::Kind::click, .window = window, .name = control});
}

void slide(Bench& bench, int ticks)
{
    for (; ticks > 0; --ticks) {
        deliver(bench.form, {.kind = Event::Kind::tick, .window = form2::window, .name = form2::control::Timer2});
    }
}

} // namespace

TEST(HelpWindow, ShowsItselfOnceAtStartAndLeavesTheKeyboardAlone)
{
    Bench bench;
    EXPECT_EQ(bench.window.intervals.at("Timer1"), 100);
    for (int i = 0; i < 2; ++i) {
        deliver(bench.form, {.kind = Event::Kind::tick, .name = control::Timer1});
        EXPECT_EQ(bench.window.intervals.at("Timer1"), 0);
        EXPECT_EQ(bench.help.timesShownWithoutKeyboard, 1);
    }
    EXPECT_EQ(bench.help.timesShown, 0);
    EXPECT_EQ(bench.form.startShown, 1);
}

TEST(HelpWindow, SlidesOpenInStepsWhoseLastOneIsShorter)
{
    Bench bench;
    click(bench, mainWindow, "htu");
    click(bench, form2::window, form2::control::Check1);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 100);
    slide(bench, 17);
    EXPECT_EQ(bench.help.height(), 5010);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 100);
    slide(bench, 1);
    EXPECT_EQ(bench.help.intervals.at("Timer2"), 0);
    EXPECT_EQ(bench.help.heights, (std::vector{3210, 3310, 3410, 3510, 3610, 3710, 3810, 3910, 4010, 4110,
                                               4210, 4310, 4410, 4510, 4610, 4710, 4810, 4910, 5010, 5055}));
    click(bench, form2::window, form2::control::Check1);
    EXPECT_EQ(bench.help.height(), 3210);
}

TEST(HelpWindow, OpensAnewWhenItIsCollapsedInTheMiddleOfASlide)
{
    Bench bench;
    click(bench, mainWindow, "htu");
    click(bench, form2::window, form2::control::Check1);
    slide(bench, 5);
    click(bench, form2::window, form2::control::Check1);
    EXPECT_EQ(bench.help.height(), 3210);
    slide(bench, 1);
    EXPECT_EQ(bench.help.height(), 3310);
}

TEST(HelpWindow, LabelTicksTheBoxAndDoesWhatTheBoxDoes)
{
    Bench bench;
    click(bench, mainWindow, "htu");
    for (const auto& [ticked, height] : {std::pair{1, 3310}, {0, 3210}, {1, 3310}}) {
        click(bench, form2::window, form2::control::Label23);
        EXPECT_EQ(bench.help.value(form2::control::Check1), ticked);
        EXPECT_EQ(bench.help.height(), height);
    }
}

TEST(HelpWindow, LoadsOnceSoItShowsAgainAsItWasLeft)
{
    for (const int openFlag : {0, 1}) {
        Bench bench;
        bench.form.helpOpen = openFlag;
        click(bench, mainWindow, "hheellpp");
        EXPECT_EQ(bench.help.height(), 3210);
        EXPECT_EQ(bench.help.intervals["Timer2"], openFlag * 100); // slides open by itself if it is told to
        slide(bench, 30);
        click(bench, mainWindow, "htu");
        EXPECT_EQ(bench.help.height(), 5055);
        EXPECT_EQ(bench.help.timesShown, 2);
    }
}

TEST(Windows, AreHiddenByTheirButtonsAndFrames)
{
    Bench bench;
    click(bench, mainWindow, "about");
    EXPECT_EQ(bench.about.timesShown, 1);
    EXPECT_NE(bench.about.at(form3::control::Picture1).picture, nullptr);
    click(bench, form3::window, form3::control::Command1);
    click(bench, form3::window, form3::control::Command2);
    click(bench, form2::window, form2::control::Command1);
    for (const Name window : {form2::window, form3::window, form4::window}) {
        deliver(bench.form, {.kind = Event::Kind::close, .window = window});
    }
    EXPECT_EQ(bench.about.timesHidden, 3);
    EXPECT_EQ(bench.help.timesHidden, 2);
    EXPECT_EQ(bench.output.timesHidden, 1);
}
