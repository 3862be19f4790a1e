// The strokes are checked by the symbol sheet.

#include "circuit/valued_components.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

} // namespace

TEST(ValuedComponents, PrintTheValueAsTypedInTheirColourAndMoveThePenPastTheSymbol)
{
    struct Case {
        const char* entered;
        const char* prompt;
        Name color;
        int level, upright; ///< the pen's ways
    };
    for (const Case& c : {Case{"R4.70", " Enter Value of Resistance ", "resistancecolor", 1050, 750},
                          Case{"I4.70", " Enter Value of Inductance ", "inductancecolor", 900, 900},
                          Case{"C4.70", " Enter Value of Capacitance ", "capacitancecolor", 160, 160}}) {
        for (const auto& [heading, x, y] : waysPast(c.level, c.upright)) {
            SCOPED_TRACE(c.prompt + std::to_string(heading));
            Bench bench;
            bench.dialogs.picked = red;
            bench.click(c.color);
            bench.form.heading = heading;
            bench.enter(c.entered);
            EXPECT_EQ(bench.dialogs.lastPrompt, c.prompt);
            EXPECT_EQ(bench.surface.firstInkColor.value_or(red), red);
            EXPECT_EQ(bench.surface.foreColor, black);
            EXPECT_EQ(bench.drawn().find(" 4.70\n") == std::string::npos, heading == 7);
            EXPECT_EQ(bench.form.x, x);
            EXPECT_EQ(bench.form.y, y);
            EXPECT_EQ(bench.window.at(control::Picture1).left, x);
            EXPECT_EQ(bench.window.at(control::Picture1).top, 1200);
            EXPECT_GT(bench.form.resist + bench.form.induc + bench.form.capac, 0);
        }
    }
}

TEST(ValuedComponents, SumInSeriesAndCapacitancesByTheirReciprocals)
{
    Bench bench;
    for (const char* const part :
         {"R10", "R10", "R-4", "R0", "R", "R 0.0 ", "I0.5", "I1E-1", "C2", "C2", "C0", "C", "C-4"}) {
        bench.enter(part);
    }
    EXPECT_EQ(bench.form.resist, 16);
    EXPECT_DOUBLE_EQ(bench.form.induc, 0.6);
    EXPECT_EQ(bench.form.capac, 0.75);
}

TEST(ValuedComponents, ZeroAndCancelDrawNothing)
{
    for (const char* const zero : {"C0", "C", "C0.0", "C -0 ", "C0e5"}) {
        Bench bench;
        bench.window.setLeft(control::Picture1, 77);
        bench.surface.setForeColor(red);
        bench.enter(zero);
        EXPECT_EQ(bench.outcome(), nothing);
        EXPECT_EQ(bench.surface.foreColor, black);
        EXPECT_EQ(bench.form.capac, 0);
    }
}

TEST(ValuedComponents, BadTextBringsOneMessageAndChangesNothing)
{
    struct Case {
        const char* entered;
        const char* message;
    };
    for (const Case& c :
         {Case{"Rabc", "Type mismatch"}, Case{"R1,5", "Type mismatch"}, Case{"R1e999", "Overflow"},
          Case{"R1.7e308", "Overflow"}, Case{"C1e-320", "Overflow"}}) { // its reciprocal is out of range
        Bench bench;
        bench.form.resist = 1.7e308;
        bench.dialogs.expect("Schemlet 2.0", 0);
        bench.enter(c.entered);
        EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with(c.message)) << bench.dialogs.lastPrompt;
        EXPECT_EQ(bench.form.resist, 1.7e308);
        EXPECT_EQ(bench.form.capac, 0);
        EXPECT_EQ(bench.outcome(), nothing);
        bench.enter("C5"); // the program goes on
        EXPECT_EQ(bench.form.capac, 0.2);
    }
}
