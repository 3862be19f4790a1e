#include "shell/splash.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Splash, FillsItsBarAndOpensTheMainWindowOnTheTickAfterItIsFull)
{
    Bench bench(Bench::Start::atSplash);
    using Clocks = decltype(bench.splash.intervals);
    EXPECT_EQ(bench.splash.timesShown, 1);
    EXPECT_NE(bench.splash.at(form6::control::Picture1).picture, nullptr);
    EXPECT_EQ(bench.splash.intervals, (Clocks{{"Timer1", 1000}}));

    bench.tick(form6::control::Timer1, form6::window);
    EXPECT_EQ(bench.splash.intervals, (Clocks{{"Timer1", 0}, {"Timer2", 50}}));
    for (int value = 5; value <= 100; value += 5) {
        bench.tick(form6::control::Timer2, form6::window);
        EXPECT_EQ(bench.splash.value(form6::control::ProgressBar1), value);
        ASSERT_EQ(bench.window.timesShown + bench.splash.timesUnloaded, 0) << value;
    }
    EXPECT_TRUE(bench.window.intervals.empty()); // the main window's clocks start with it
    EXPECT_EQ(bench.form.x, 0);

    bench.tick(form6::control::Timer2, form6::window);
    EXPECT_EQ(bench.window.timesShown, 1);
    EXPECT_EQ(bench.splash.timesUnloaded, 1);
    EXPECT_EQ(bench.window.intervals.at("Timer1"), 100);
    EXPECT_EQ(bench.window.intervals.at("Timer2"), 500);
    EXPECT_EQ(bench.form.x, 1600);
}

TEST(Splash, MakesWayAtOnceWhenItIsClosed)
{
    Bench bench(Bench::Start::atSplash);
    bench.close(form6::window);
    EXPECT_EQ(bench.window.timesShown, 1);
    EXPECT_EQ(bench.splash.timesUnloaded, 1);
}
