#include "canvas/form1.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Load, GivesEveryVariableItsStartValue)
{
    Rig rig;
    EXPECT_EQ(rig.window.caption, " - Schemlet 2.0  New File ");
    EXPECT_EQ(rig.outcome(), nothing);
    EXPECT_EQ(rig.form.heading, heading::right);
    EXPECT_EQ(rig.form.savedMark, 100);
    EXPECT_EQ(rig.form.canvasBackColor, white);
    EXPECT_EQ(rig.form.confirm, (std::array{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(rig.window.at(control::sb).text, " Press F1 for Help ");
    EXPECT_FALSE(rig.window.at(control::Label27).visible);
    EXPECT_FALSE(rig.window.at(control::Shape1).visible);
    EXPECT_FALSE(rig.window.at(control::Command3).enabled);
    EXPECT_EQ(rig.window.intervals.at("Timer2"), 500);
}

TEST(Marker, BlinksOnAndOffAcrossTheCountersWrap)
{
    Rig rig;
    for (int tick = 0; tick < 1000; ++tick) {
        rig.tick(control::Timer2);
        ASSERT_EQ(rig.window.at(control::Picture1).visible, tick % 2 == 0) << "tick " << tick;
        ASSERT_LT(rig.form.blinkCount, 10000);
    }
}

} // namespace schemlet
