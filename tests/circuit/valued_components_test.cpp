#include "circuit/valued_components.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

} // namespace

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
