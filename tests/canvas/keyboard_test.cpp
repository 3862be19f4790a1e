#include "canvas/keyboard.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

} // namespace

TEST(ArrowKey, TurnsThePenAlsoInEraseModeWhereItLaysNoWire)
{
    for (const auto& [code, heading] : {std::pair{key::right, heading::right},
                                        {key::left, heading::left},
                                        {key::up, heading::up},
                                        {key::down, heading::down}}) {
        for (const bool erasing : {false, true}) {
            Bench bench;
            bench.form.eraseMode = erasing ? 1 : 0;
            bench.press(code);
            EXPECT_EQ(bench.outcome() == nothing, erasing);
            EXPECT_EQ(bench.form.heading, heading);
            EXPECT_EQ(bench.form.penMoved, 1);
            EXPECT_EQ(bench.form.savedMark, 0);
        }
    }
}

TEST(JumperQuestion, ComesOnlyWithTheSwitchOnAndTheWiresOwnColourAhead)
{
    for (const int autoJumper : {0, 1}) {
        for (const std::optional<Color> ahead : {std::optional(red), std::optional(black), std::optional<Color>()}) {
            Bench bench;
            bench.form.wireColor = red;
            bench.form.autoJumper = autoJumper;
            bench.surface.underPoint = ahead;
            bench.dialogs.always = {answer::yes, ""};
            bench.press(key::up);
            EXPECT_EQ(!bench.dialogs.lastTitle.empty(), autoJumper == 1 && ahead == red);
        }
    }
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
