#include "shell/splash.h"

#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

/// The program as it stands when it starts.
struct Start {
    RecordingSurface surface;
    StandInWindow window{formControls};
    ScriptedDialogs dialogs;
    StandInPictures pictures;
    StandInWindow others{form4::captions, form4::values};
    StandInWindow splash{splashControls};
    Form1 form{surface, window, dialogs, pictures, others, others, others, splash};

    Start() { form6::load(splash); }

    void tick(Name timer) { deliver(form, {.kind = Event::Kind::tick, .window = form6::window, .name = timer}); }
};

} // namespace

TEST(Splash, FillsItsBarAndOpensTheMainWindowOnTheTickAfterItIsFull)
{
    Start start;
    EXPECT_EQ(start.splash.timesShown, 1);
    EXPECT_NE(start.splash.at(form6::control::Picture1).picture, nullptr);
    EXPECT_EQ(start.splash.intervals, (decltype(start.splash.intervals){{"Timer1", 1000}}));

    start.tick(form6::control::Timer1);
    EXPECT_EQ(start.splash.intervals, (decltype(start.splash.intervals){{"Timer1", 0}, {"Timer2", 50}}));
    for (int value = 5; value <= 100; value += 5) {
        start.tick(form6::control::Timer2);
        EXPECT_EQ(start.splash.value(form6::control::ProgressBar1), value);
        ASSERT_EQ(start.window.timesShown + start.splash.timesUnloaded, 0) << value;
    }
    EXPECT_TRUE(start.window.intervals.empty()); // the main window's clocks start with it
    EXPECT_EQ(start.form.x, 0);

    start.tick(form6::control::Timer2);
    EXPECT_EQ(start.window.timesShown, 1);
    EXPECT_EQ(start.splash.timesUnloaded, 1);
    EXPECT_EQ(start.window.intervals.at("Timer1"), 100);
    EXPECT_EQ(start.window.intervals.at("Timer2"), 500);
    EXPECT_EQ(start.form.x, 1600);
}

TEST(Splash, MakesWayAtOnceWhenItIsClosed)
{
    Start start;
    deliver(start.form, {.kind = Event::Kind::close, .window = form6::window});
    EXPECT_EQ(start.window.timesShown, 1);
    EXPECT_EQ(start.splash.timesUnloaded, 1);
}
