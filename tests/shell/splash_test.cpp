#include "shell/splash.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Splash, FillsItsBarAndOpensTheMainWindowOnTheTickAfterItIsFull)
{
    Rig rig(Rig::Start::atSplash);
    using Clocks = decltype(rig.splash.intervals);
    EXPECT_EQ(rig.splash.timesShown, 1);
    EXPECT_NE(rig.splash.at(form6::control::Picture1).picture, nullptr);
    EXPECT_EQ(rig.splash.intervals, (Clocks{{"Timer1", 1000}}));

    rig.tick(form6::control::Timer1, form6::window);
    EXPECT_EQ(rig.splash.intervals, (Clocks{{"Timer1", 0}, {"Timer2", 50}}));
    for (int value = 5; value <= 100; value += 5) {
        rig.tick(form6::control::Timer2, form6::window);
        EXPECT_EQ(rig.splash.value(form6::control::ProgressBar1), value);
        ASSERT_EQ(rig.window.timesShown + rig.splash.timesUnloaded, 0) << value;
    }
    EXPECT_TRUE(rig.window.intervals.empty()); // the main window's clocks start with it
    EXPECT_EQ(rig.form.x, 0);

    rig.tick(form6::control::Timer2, form6::window);
    EXPECT_EQ(rig.window.timesShown, 1);
    EXPECT_EQ(rig.splash.timesUnloaded, 1);
    EXPECT_EQ(rig.window.intervals.at("Timer1"), 100);
    EXPECT_EQ(rig.window.intervals.at("Timer2"), 500);
    EXPECT_EQ(rig.form.x, 1600);
}

TEST(Splash, MakesWayAtOnceWhenItIsClosed)
{
    Rig rig(Rig::Start::atSplash);
    rig.close(form6::window);
    EXPECT_EQ(rig.window.timesShown, 1);
    EXPECT_EQ(rig.splash.timesUnloaded, 1);
}

} // namespace schemlet
