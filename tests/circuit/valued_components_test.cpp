#include "circuit/valued_components.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr Color red = 0x0000FF;

} // namespace

TEST(ValuedComponents, SumInSeriesAndCapacitancesByTheirReciprocals)
{
    Rig rig;
    for (const char* const part :
         {"R10", "R10", "R-4", "R0", "R", "R 0.0 ", "I0.5", "I1E-1", "C2", "C2", "C0", "C", "C-4"}) {
        rig.enter(part);
    }
    EXPECT_EQ(rig.form.resist, 16);
    EXPECT_DOUBLE_EQ(rig.form.induc, 0.6);
    EXPECT_EQ(rig.form.capac, 0.75);
}

TEST(ValuedComponents, ZeroAndCancelDrawNothing)
{
    for (const char* const zero : {"C0", "C", "C0.0", "C -0 ", "C0e5"}) {
        Rig rig;
        rig.window.setLeft(control::Picture1, 77);
        rig.surface.setForeColor(red);
        rig.enter(zero);
        EXPECT_EQ(rig.outcome(), nothing);
        EXPECT_EQ(rig.surface.foreColor, black);
        EXPECT_EQ(rig.form.capac, 0);
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
        Rig rig;
        rig.form.resist = 1.7e308;
        rig.dialogs.expect("Schemlet 2.0", 0);
        rig.enter(c.entered);
        EXPECT_TRUE(rig.dialogs.lastPrompt.starts_with(c.message)) << rig.dialogs.lastPrompt;
        EXPECT_EQ(rig.form.resist, 1.7e308);
        EXPECT_EQ(rig.form.capac, 0);
        EXPECT_EQ(rig.outcome(), nothing);
        rig.enter("C5"); // the program goes on
        EXPECT_EQ(rig.form.capac, 0.2);
    }
}

} // namespace schemlet
