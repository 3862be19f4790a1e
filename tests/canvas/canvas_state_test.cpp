#include "canvas/canvas_state.h"

#include "canvas/keyboard.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Load, GivesEveryVariableItsStartValue)
{
    Bench bench;

    EXPECT_EQ(bench.window.caption, " - Schemlet 2.0  New File ");
    EXPECT_EQ(bench.pen(), "1600 1500");
    EXPECT_EQ(bench.marker(), "1600 1200");
    EXPECT_EQ(bench.form.heading, heading::right);
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.form.canvasBackColor, white);
    EXPECT_EQ(bench.form.confirm, (std::array{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(bench.window.at(control::sb).text, " Press F1 for Help ");
    EXPECT_FALSE(bench.window.at(control::Label27).visible);
    EXPECT_FALSE(bench.window.at(control::Shape1).visible);
    EXPECT_EQ(bench.window.intervals.at("Timer2"), 500);
    EXPECT_EQ(bench.drawn(), "");
}

TEST(Load, PutsTheCurrentPointWhereThePenWasBefore)
{
    Bench bench;
    EXPECT_EQ(bench.surface.current().x, 0); // nowhere yet at start
    EXPECT_EQ(bench.surface.current().y, 0);

    bench.form.x = 4000;
    bench.form.y = 3000;
    load(bench.form);

    EXPECT_EQ(bench.surface.current().x, 4000);
    EXPECT_EQ(bench.surface.current().y, 3000);
    EXPECT_EQ(bench.pen(), "1600 1500");
}

TEST(Load, BringsBackWhatItAssignsAndLeavesTheRest)
{
    Bench bench;
    bench.form.wireColor = bench.form.gatesColor = 0x0000FF;
    bench.form.confirm[gatesConfirm] = 0;
    bench.form.resist = bench.form.supplyCurrent = 7;
    bench.form.heading = 6;
    bench.form.pencilTool = bench.form.autoJumper = bench.form.eraseMode = 1;
    load(bench.form);

    EXPECT_EQ(bench.form.wireColor, black);
    EXPECT_EQ(bench.form.confirm[gatesConfirm], 1);
    EXPECT_EQ(bench.form.resist + bench.form.supplyCurrent, 0);
    EXPECT_EQ(bench.form.heading, heading::right);
    EXPECT_EQ(bench.form.eraseMode, 0);
    EXPECT_EQ(bench.form.gatesColor, 0x0000FFU);
    EXPECT_EQ(bench.form.pencilTool, 1);
    EXPECT_EQ(bench.form.autoJumper, 1);
}

TEST(Marker, BlinksOnAndOffAcrossTheCountersWrap)
{
    Bench bench;
    for (int tick = 0; tick < 1000; ++tick) {
        Timer2(bench.form);
        ASSERT_EQ(bench.window.at(control::Picture1).visible, tick % 2 == 0) << "tick " << tick;
        ASSERT_LE(bench.form.blinkCount, 10000);
    }
}
