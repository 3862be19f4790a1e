#include "symbols/gates.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

struct Gate {
    const char* title;
    Handler draw;
    std::size_t strokes;
    const char* lastStroke;
    const char* pen;
    bool everyHeading; ///< also leaves the marker behind
};

// From the start (1600, 1500).
const Gate gates[] = {
    {"This draws an AND GATE", and_, 7, "line 1900 1500 1800 1400", "1925 1550", false},
    {"This draws an OR GATE", or_, 5, "line 1590 1400 1900 1600", "1900 1590", false},
    {"This draws a NOR GATE", nor, 6, "circle 1920 1600 30", "1975 1590", false},
    {"This draws a NAND GATE", nand, 8, "circle 1950 1570 30", "1985 1575", false},
    {"This draws an EX-OR GATE", exor, 8, "line 1670 1400 1980 1600", "1980 1590", true},
    {"This draws an EX-NOR GATE", exnor, 9, "circle 2010 1600 30", "2080 1600", true},
};

} // namespace

TEST(Gates, AskByTheirTitleDrawInTheirColourAndLeaveThePenAtTheOutput)
{
    for (const Gate& gate : gates) {
        SCOPED_TRACE(gate.title);
        Bench bench;
        bench.form.gatesColor = 0x0000FF;
        bench.dialogs.expect(gate.title, answer::yes);
        gate.draw(bench.form);
        ASSERT_EQ(bench.surface.ink.size(), gate.strokes);
        EXPECT_EQ(bench.surface.ink.back(), gate.lastStroke);
        EXPECT_EQ(bench.surface.foreColor, 0x0000FFU);
        EXPECT_EQ(bench.pen(), gate.pen);
        const auto penX = std::string(gate.pen).substr(0, 4);
        EXPECT_EQ(bench.marker(), (gate.everyHeading ? "1600" : penX) + " 1200");
    }
}

TEST(Gates, OnlyTheExclusiveOnesDrawInOtherHeadings)
{
    for (const Gate& gate : gates) {
        for (const int heading : {heading::left, heading::up, heading::down, 7}) {
            SCOPED_TRACE(gate.title);
            Bench bench;
            bench.form.confirm[gatesConfirm] = 0;
            bench.form.heading = heading;
            gate.draw(bench.form);
            EXPECT_EQ(bench.surface.ink.size(), gate.everyHeading ? gate.strokes : 0);
            EXPECT_EQ(bench.pen(), gate.everyHeading ? gate.pen : "1600 1500");
        }
    }
}

TEST(Gates, TwoInARowStartTheSecondAtTheFirstOnesOutput)
{
    Bench bench;
    bench.form.confirm[gatesConfirm] = 0;
    nand(bench.form);
    bench.drawn();
    nand(bench.form);
    EXPECT_EQ(bench.surface.ink.front(), "line 1985 1575 1985 1825");
    EXPECT_EQ(bench.pen(), "2370 1650");
    EXPECT_EQ(bench.marker(), "2370 1200"); // the top does not follow
}
