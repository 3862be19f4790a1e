#include "circuit/valued_components.h"

#include "platform/event.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

void type(Bench& bench, char letter)
{
    deliver(bench.form, {.kind = Event::Kind::keyPress, .code = letter});
}

} // namespace

TEST(ValuedComponents, PrintTheValueAtEachHeadingsOwnPlaceAndMoveThePenPastTheSymbol)
{
    struct Case {
        char letter;
        int heading;
        const char* printed;
        const char* lastStroke;
        const char* pen;
        std::size_t calls; ///< strokes and the print
    };
    const Case cases[] = {
        {'r', heading::right, "print 2050 1700 4.70", "line 2550 1700 2650 1460", "2650 1500", 11},
        {'r', heading::left, "print 1000 1600 4.70", "line 650 1300 550 1540", "550 1500", 11},
        {'r', heading::up, "print 1199 1000 4.70", "line 1500 800 1640 750", "1600 750", 11},
        {'r', heading::down, "print 1701 1800 4.70", "line 1700 2200 1560 2250", "1600 2250", 11},
        {'i', heading::right, "print 1950 1701 4.70", "circle 2200 1500 150", "2500 1500", 9},
        {'i', heading::left, "print 1050 1701 4.70", "print 1050 1701 4.70", "700 1500", 7},
        {'i', heading::up, "print 1150 1051 4.70", "print 1150 1051 4.70", "1600 600", 7},
        {'i', heading::down, "print 1800 1949 4.70", "print 1800 1949 4.70", "1600 2400", 7},
        {'c', heading::right, "print 1600 1710 4.70", "line 1750 1700 1750 1300", "1760 1500", 4},
        {'c', heading::left, "print 1450 1700 4.70", "print 1450 1700 4.70", "1440 1500", 4},
        {'c', heading::up, "print 1099 1350 4.70", "line 1400 1350 1800 1350", "1600 1340", 5},
        {'c', heading::down, "print 1780 1500 4.70", "line 1400 1650 1800 1650", "1600 1660", 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(1, c.letter) + " " + std::to_string(c.heading));
        Bench bench;
        bench.form.heading = c.heading;
        bench.form.resistanceColor = bench.form.inductanceColor = bench.form.capacitanceColor = red;
        bench.dialogs.expectInput(c.letter == 'r'   ? " RESISTANCE "
                                  : c.letter == 'i' ? " INDUCTANCE "
                                                    : " CAPACITANCE ",
                                  "4.70"); // printed as typed
        type(bench, c.letter);
        EXPECT_EQ(bench.dialogs.lastPrompt, c.letter == 'r'   ? " Enter Value of Resistance "
                                            : c.letter == 'i' ? " Enter Value of Inductance "
                                                              : " Enter Value of Capacitance ");
        EXPECT_EQ(std::ranges::count(bench.surface.ink, c.printed), 1);
        EXPECT_EQ(bench.surface.ink.size(), c.calls);
        EXPECT_EQ(bench.surface.ink.back(), c.lastStroke);
        EXPECT_EQ(bench.surface.firstInkColor, red);
        EXPECT_EQ(bench.surface.foreColor, black);
        EXPECT_EQ(bench.pen(), c.pen);
        EXPECT_EQ(bench.window.at(control::Picture1).left, bench.form.x);
        EXPECT_EQ(bench.window.at(control::Picture1).top, 1200);
    }
}

TEST(ValuedComponents, SumInSeriesAndCapacitancesByTheirReciprocals)
{
    Bench bench;
    for (const char* const value : {"10", "10", "-4", "0", "", " 0.0 "}) {
        bench.dialogs.expectInput(" RESISTANCE ", value);
        type(bench, 'R');
    }
    EXPECT_EQ(bench.form.resist, 16);
    for (const char* const value : {"0.5", "1E-1"}) {
        bench.dialogs.expectInput(" INDUCTANCE ", value);
        type(bench, 'I');
    }
    EXPECT_DOUBLE_EQ(bench.form.induc, 0.6);
    for (const char* const value : {"2", "2", "0", "", "-1"}) {
        bench.dialogs.expectInput(" CAPACITANCE ", value);
        type(bench, 'C');
    }
    EXPECT_EQ(bench.form.capac, 0);
}

TEST(ValuedComponents, ZeroAndCancelDrawNothing)
{
    for (const char* const nothing : {"0", "", "0.0", " -0 ", "0e5"}) {
        Bench bench;
        bench.window.setLeft(control::Picture1, 77);
        bench.surface.setForeColor(red);
        bench.dialogs.expectInput(" CAPACITANCE ", nothing);
        type(bench, 'c');
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.pen(), "1600 1500");
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.surface.foreColor, black);
        EXPECT_EQ(bench.form.capac, 0);
    }
}

TEST(ValuedComponents, AccumulateEvenWhenTheHeadingLetsThemDrawNothing)
{
    Bench bench;
    bench.form.heading = 7;
    bench.dialogs.expectInput(" RESISTANCE ", "5");
    type(bench, 'r');
    EXPECT_EQ(bench.form.resist, 5);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.pen(), "1600 1500");
}

TEST(ValuedComponents, BadTextBringsOneMessageAndChangesNothing)
{
    struct Case {
        const char* text;
        const char* message;
    };
    for (const Case& c : {Case{"abc", "Type mismatch"}, Case{"1,5", "Type mismatch"}, Case{"1e999", "Overflow"},
                          Case{"1.7e308", "Overflow"}}) {
        Bench bench;
        bench.form.resist = 1.7e308;
        bench.dialogs.expectInput(" RESISTANCE ", c.text);
        bench.dialogs.expect("Schemlet 2.0", 0);
        type(bench, 'r');
        EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with(c.message)) << bench.dialogs.lastPrompt;
        EXPECT_EQ(bench.form.resist, 1.7e308);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.pen(), "1600 1500");

        bench.dialogs.expectInput(" CAPACITANCE ", "5"); // the program goes on
        type(bench, 'c');
        EXPECT_EQ(bench.form.capac, 0.2);
    }
    Bench bench;
    bench.dialogs.expectInput(" CAPACITANCE ", "1e-320"); // its reciprocal is out of range
    bench.dialogs.expect("Schemlet 2.0", 0);
    type(bench, 'c');
    EXPECT_EQ(bench.form.capac, 0);
}
