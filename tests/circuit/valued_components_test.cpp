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
        char letter;
        const char* prompt;
        Name color;
        int level, upright; ///< the pen's ways
    };
    for (const Case& c : {Case{'R', " Enter Value of Resistance ", "resistancecolor", 1050, 750},
                          Case{'I', " Enter Value of Inductance ", "inductancecolor", 900, 900},
                          Case{'C', " Enter Value of Capacitance ", "capacitancecolor", 160, 160}}) {
        for (const auto& [heading, x, y] : waysPast(c.level, c.upright)) {
            SCOPED_TRACE(c.prompt + std::to_string(heading));
            Bench bench;
            bench.dialogs.picked = red;
            bench.click(c.color);
            bench.form.heading = heading;
            bench.enter(c.letter, "4.70");
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
    for (const auto& [letter, value] : {std::pair{'R', "10"},
                                        {'R', "10"},
                                        {'R', "-4"},
                                        {'R', "0"},
                                        {'R', ""},
                                        {'R', " 0.0 "},
                                        {'I', "0.5"},
                                        {'I', "1E-1"},
                                        {'C', "2"},
                                        {'C', "2"},
                                        {'C', "0"},
                                        {'C', ""},
                                        {'C', "-4"}}) {
        bench.enter(letter, value);
    }
    EXPECT_EQ(bench.form.resist, 16);
    EXPECT_DOUBLE_EQ(bench.form.induc, 0.6);
    EXPECT_EQ(bench.form.capac, 0.75);
}

TEST(ValuedComponents, ZeroAndCancelDrawNothing)
{
    for (const char* const zero : {"0", "", "0.0", " -0 ", "0e5"}) {
        Bench bench;
        bench.window.setLeft(control::Picture1, 77);
        bench.surface.setForeColor(red);
        bench.enter('C', zero);
        EXPECT_EQ(bench.outcome(), nothing);
        EXPECT_EQ(bench.surface.foreColor, black);
        EXPECT_EQ(bench.form.capac, 0);
    }
}

TEST(ValuedComponents, BadTextBringsOneMessageAndChangesNothing)
{
    struct Case {
        char letter;
        const char* text;
        const char* message;
    };
    for (const Case& c :
         {Case{'R', "abc", "Type mismatch"}, Case{'R', "1,5", "Type mismatch"}, Case{'R', "1e999", "Overflow"},
          Case{'R', "1.7e308", "Overflow"}, Case{'C', "1e-320", "Overflow"}}) { // its reciprocal is out of range
        Bench bench;
        bench.form.resist = 1.7e308;
        bench.dialogs.expect("Schemlet 2.0", 0);
        bench.enter(c.letter, c.text);
        EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with(c.message)) << bench.dialogs.lastPrompt;
        EXPECT_EQ(bench.form.resist, 1.7e308);
        EXPECT_EQ(bench.form.capac, 0);
        EXPECT_EQ(bench.outcome(), nothing);
        bench.enter('C', "5"); // the program goes on
        EXPECT_EQ(bench.form.capac, 0.2);
    }
}
