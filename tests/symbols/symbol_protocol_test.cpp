#include "symbols/symbol_protocol.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

// A figure with a row of every kind, and every way to derive a table from it.
constexpr auto figure = strokes(line(0, 0, 100, -50), circle(30, 40, 20), label(-5, 10, "D"), value(),
                                line(0, 10, 20, 30, " b"), sameLine("V"), text("T3"));
constexpr auto joined = join(strokes(dot(1, 2)), rows<2, 3>(figure), strokes(line(7, 8, 9, 10)));
constexpr auto mirrored = dxNegated(rows<1, 2>(figure));
constexpr auto flipped = dyNegated(rows<1, 2>(figure));
constexpr auto halfTurned = turned(rows<1, 2>(figure));

constexpr Branch anyWay[] = {{.strokes = figure, .after = {1, 2}}};
constexpr Branch fourWays[] = {
    {.heading = heading::right, .strokes = joined, .after = {300, 0}, .before = {80, 0}},
    {.heading = heading::left, .strokes = mirrored, .after = {-1, 0}, .before = {-220, 0}, .origin = Origin::movedPen},
    {.heading = heading::up, .strokes = flipped, .before = {0, -220}},
    {.heading = heading::down, .strokes = halfTurned},
};

constexpr Symbol symbolWith(std::span<const Branch> branches)
{
    return {.title = "This draws a TEST",
            .confirm = gatesConfirm,
            .answer = &CanvasState::andAnswer,
            .color = &CanvasState::gatesColor,
            .branches = branches};
}

struct QuietBench : Bench {
    QuietBench()
    {
        form.confirm.fill(0);
        form.gatesColor = red;
    }
};

} // namespace

TEST(DrawBranch, DrawsEveryKindOfRowFromThePen)
{
    Bench bench;
    drawBranch(bench.form, anyWay, "10k");
    EXPECT_EQ(bench.drawn(), "line 1600 1500 1700 1450\n"
                             "circle 1630 1540 20\n"
                             "line 1595 1510 1595 1510\n"
                             "print 1595 1510 D\n"
                             "print 0 1705 10k\n"
                             "line 1600 1510 1620 1530\n"
                             "print 1620 1530  b\n"
                             "print 0 1725 V ...\n"
                             "print 100 1725 T3\n");
    EXPECT_EQ(bench.pen(), "1601 1502");
}

TEST(DrawBranch, DerivedTablesAndBothOriginsDrawWhereTheyShould)
{
    struct Case {
        int heading;
        const char* ink;
        const char* pen;
    };
    const Case cases[] = {
        {heading::right,
         "line 1601 1502 1601 1502\ncircle 1630 1540 20\nline 1595 1510 1595 1510\nprint 1595 1510 D\n"
         "line 1607 1508 1609 1510\n",
         "1980 1500"},
        {heading::left, "line 1380 1500 1280 1450\ncircle 1350 1540 20\n", "1379 1500"},
        {heading::up, "line 1600 1500 1700 1550\ncircle 1630 1460 20\n", "1600 1280"},
        {heading::down, "line 1600 1500 1500 1550\ncircle 1570 1460 20\n", "1600 1500"},
        {6, "", "1600 1500"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.heading);
        Bench bench;
        bench.form.heading = c.heading;
        drawBranch(bench.form, fourWays);
        EXPECT_EQ(bench.drawn(), c.ink);
        EXPECT_EQ(bench.pen(), c.pen);
    }
}

TEST(Place, RefusalChangesNothingButTheAnswer)
{
    Bench bench;
    Symbol symbol = symbolWith(anyWay);
    symbol.marker = Marker::gateForm;
    symbol.colorAfter = ColorAfter::toBlack;
    symbol.count = &CanvasState::blinkCount;
    bench.form.gatesColor = red;
    bench.surface.setForeColor(0x123456);
    bench.window.setLeft(control::Picture1, 77);

    bench.dialogs.expect("This draws a TEST", answer::no);
    place(bench.form, symbol);

    EXPECT_EQ(bench.form.andAnswer, answer::no);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.pen(), "1600 1500");
    EXPECT_EQ(bench.marker(), "77 1200");
    EXPECT_EQ(bench.surface.foreColor, 0x123456U);
    EXPECT_EQ(bench.form.blinkCount, 0);
}

TEST(Place, AsksOnlyWithItsFamilysSwitchOn)
{
    Bench bench;
    bench.dialogs.expect("This draws a TEST", answer::yes);
    place(bench.form, symbolWith(anyWay));
    EXPECT_EQ(bench.dialogs.lastPrompt, " Do you want to Continue ?");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::yesNoQuestion);
    EXPECT_EQ(bench.form.andAnswer, answer::yes);
    EXPECT_NE(bench.drawn(), "");

    bench.form.confirm[gatesConfirm] = 0;
    bench.form.andAnswer = 0;
    place(bench.form, symbolWith(anyWay));
    EXPECT_EQ(bench.form.andAnswer, 0);
    EXPECT_NE(bench.drawn(), "");
}

TEST(Place, SetsColourCountAndMarkerEvenWhenNoBranchFits)
{
    QuietBench bench;
    Symbol symbol = symbolWith(fourWays);
    symbol.marker = Marker::gateForm;
    symbol.count = &CanvasState::blinkCount;
    bench.form.heading = 7;
    bench.window.setLeft(control::Picture1, 77);
    place(bench.form, symbol);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.surface.foreColor, red);
    EXPECT_EQ(bench.form.blinkCount, 1);
    EXPECT_EQ(bench.marker(), "1600 1200");
}

TEST(Place, LeavesTheColourItsFamilyLeaves)
{
    struct Case {
        ColorAfter after;
        bool asked;
        Color left;
    };
    for (const Case& c :
         {Case{ColorAfter::kept, false, red}, Case{ColorAfter::kept, true, red},
          Case{ColorAfter::toBlack, false, black}, Case{ColorAfter::toBlack, true, black},
          Case{ColorAfter::toBlackUnlessAsked, false, black}, Case{ColorAfter::toBlackUnlessAsked, true, red}}) {
        QuietBench bench;
        if (c.asked) {
            bench.form.confirm[gatesConfirm] = 1;
            bench.dialogs.expect("This draws a TEST", answer::yes);
        }
        Symbol symbol = symbolWith(anyWay);
        symbol.colorAfter = c.after;
        place(bench.form, symbol);
        EXPECT_EQ(bench.surface.foreColor, c.left);
    }
}

TEST(Place, WithoutAColourOfItsOwnDrawsInTheCurrentOne)
{
    QuietBench bench;
    bench.surface.setForeColor(0x123456);
    Symbol symbol = symbolWith(anyWay);
    symbol.color = nullptr;
    place(bench.form, symbol);
    EXPECT_EQ(bench.surface.foreColor, 0x123456U);
}
