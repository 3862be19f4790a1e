#include "canvas/canvas_state.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Load, GivesEveryVariableItsStartValue)
{
    Bench bench;
    EXPECT_EQ(bench.window.caption, " - Schemlet 2.0  New File ");
    EXPECT_EQ(bench.outcome(), nothing);
    EXPECT_EQ(bench.form.heading, heading::right);
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.form.canvasBackColor, white);
    EXPECT_EQ(bench.form.confirm, (std::array{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(bench.window.at(control::sb).text, " Press F1 for Help ");
    EXPECT_FALSE(bench.window.at(control::Label27).visible);
    EXPECT_FALSE(bench.window.at(control::Shape1).visible);
    EXPECT_FALSE(bench.window.at(control::Command3).enabled);
    EXPECT_EQ(bench.window.intervals.at("Timer2"), 500);
}

TEST(Marker, BlinksOnAndOffAcrossTheCountersWrap)
{
    Bench bench;
    for (int tick = 0; tick < 1000; ++tick) {
        bench.tick(control::Timer2);
        ASSERT_EQ(bench.window.at(control::Picture1).visible, tick % 2 == 0) << "tick " << tick;
        ASSERT_LT(bench.form.blinkCount, 10000);
    }
}
