#include "canvas/keyboard.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

/// What one press of an arrow key draws: dots from a place on, ten twips apart.
std::string wire(int x, int y, int dx, int dy)
{
    std::string dots;
    for (int i = 0; i < 5; ++i) {
        dots += "circle " + std::to_string(x + i * dx) + " " + std::to_string(y + i * dy) + " 10\n";
    }
    return dots;
}

} // namespace

// One step from the start: probes and marker differ between level and upright steps.
TEST(ArrowKey, LaysWireAndMovesPenAndMarkerButInEraseModeOnlyTurnsThePen)
{
    struct Case {
        int code, heading, dx, dy;
        const char* probe;
        const char* places;
    };
    for (const Case& c : {Case{key::right, heading::right, 10, 0, "1710 1500", "pen 1650 1500, marker 1650 1200"},
                          Case{key::left, heading::left, -10, 0, "1490 1500", "pen 1550 1500, marker 1550 1200"},
                          Case{key::up, heading::up, 0, -10, "1600 1400", "pen 1600 1450, marker 1500 1150"},
                          Case{key::down, heading::down, 0, 10, "1600 1600", "pen 1600 1550, marker 1700 1250"}}) {
        for (const bool erasing : {false, true}) {
            SCOPED_TRACE(c.probe);
            Bench bench;
            bench.form.wireColor = red;
            bench.form.eraseMode = erasing ? 1 : 0;
            bench.press(c.code);
            EXPECT_EQ(bench.outcome(), erasing ? nothing : wire(1600, 1500, c.dx, c.dy) + c.places);
            EXPECT_EQ(bench.surface.foreColor, erasing ? black : red);
            EXPECT_EQ(bench.surface.probedAt, erasing ? "" : c.probe);
            EXPECT_EQ(bench.form.heading, c.heading);
            EXPECT_EQ(bench.form.penMoved, 1);
            EXPECT_EQ(bench.form.savedMark, 0);
        }
    }
}

TEST(JumperQuestion, ComesOnlyWithTheSwitchOnAndTheWiresOwnColourAheadAndYesHopsFirst)
{
    const std::string straight = wire(1600, 1500, 0, -10) + "pen 1600 1450, marker 1500 1150";
    struct Case {
        int autoJumper;
        std::optional<Color> ahead;
        int answer; ///< 0: not asked
        std::string outcome;
    };
    for (const Case& c :
         {Case{0, red, 0, straight}, Case{1, black, 0, straight}, Case{1, {}, 0, straight},
          Case{1, red, answer::no, straight},
          Case{1, red, answer::yes,
               "arc 1600 1390 100 5 1.5\n" + wire(1600, 1280, 0, -10) + "pen 1600 1230, marker 1500 930"}}) {
        Bench bench;
        bench.form.wireColor = red;
        bench.form.autoJumper = c.autoJumper;
        bench.surface.underPoint = c.ahead;
        if (c.answer != 0) {
            bench.dialogs.expect("POINT (or) LINE AHEAD...", c.answer);
        }
        bench.press(key::up);
        EXPECT_EQ(bench.outcome(), c.outcome);
        EXPECT_EQ(bench.dialogs.lastPrompt, c.answer == 0 ? "" : " Do you want to draw a JUMPER ?");
        EXPECT_EQ(bench.dialogs.lastStyle, c.answer == 0 ? Box::okOnly : Box::walkQuestion);
    }
}

// Its arcs are checked by the symbol sheet.
TEST(Jumper, HopsAlongTheHeadingInTheColourInHand)
{
    for (const auto& [heading, x, y] : waysPast(200, 220)) {
        Bench bench;
        bench.form.heading = heading;
        bench.surface.setForeColor(red);
        bench.click("jumper");
        EXPECT_EQ(bench.drawn().empty(), heading == 7);
        EXPECT_EQ(bench.pen(), std::to_string(x) + " " + std::to_string(y));
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.surface.foreColor, red);
    }
}

// The symbol sheet does not show a bar that is less than a pixel off.
TEST(Ground, HangsFourBarsFromThePenWhateverTheHeading)
{
    Bench bench;
    bench.form.heading = heading::up;
    bench.click("ground");
    EXPECT_EQ(bench.outcome(), "line 1400 1500 1800 1500\nline 1475 1555 1725 1555\nline 1525 1600 1675 1600\n"
                               "line 1575 1650 1625 1650\npen 1600 1500, marker 1600 1200");
}

TEST(AutomaticJumpers, KeyAndMenuItemFlipTheSwitchButOnlyTheItemItsMark)
{
    Bench bench;
    const auto state = [&] { return std::tuple(bench.form.autoJumper, bench.window.checked("jj")); };
    bench.type('j');
    EXPECT_EQ(state(), std::tuple(1, false));
    bench.click("jj");
    EXPECT_EQ(state(), std::tuple(0, true));
    bench.type('J');
    EXPECT_EQ(state(), std::tuple(1, true));
}

TEST(OtherKeys, OnlyMarkTheDrawingChanged)
{
    for (const int code : {0, 36, 41, 65, 0x78, 0x1B, 0xE9, 0x20AC}) {
        for (const bool letter : {false, true}) {
            Bench bench;
            letter ? bench.type(code) : bench.press(code);
            EXPECT_EQ(bench.outcome(), nothing) << code;
            EXPECT_EQ(bench.form.savedMark, 0);
            EXPECT_EQ(bench.form.penMoved + bench.form.eraseMode + bench.form.autoJumper, 0);
        }
    }
}
