#include "canvas/keyboard.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

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
            Rig rig;
            rig.form.eraseMode = erasing ? 1 : 0;
            rig.press(code);
            EXPECT_EQ(rig.outcome() == nothing, erasing);
            EXPECT_EQ(rig.form.heading, heading);
            EXPECT_EQ(rig.form.penMoved, 1);
            EXPECT_EQ(rig.form.savedMark, 0);
        }
    }
}

TEST(JumperQuestion, ComesOnlyWithTheSwitchOnAndTheWiresOwnColourAhead)
{
    for (const int autoJumper : {0, 1}) {
        for (const std::optional<Color> ahead : {std::optional(red), std::optional(black), std::optional<Color>()}) {
            Rig rig;
            rig.form.wireColor = red;
            rig.form.autoJumper = autoJumper;
            rig.surface.underPoint = ahead;
            rig.dialogs.always = {answer::yes, ""};
            rig.press(key::up);
            EXPECT_EQ(!rig.dialogs.lastTitle.empty(), autoJumper == 1 && ahead == red);
        }
    }
}

TEST(AutomaticJumpers, KeyAndMenuItemFlipTheSwitchButOnlyTheItemItsMark)
{
    Rig rig;
    const auto state = [&] { return std::tuple(rig.form.autoJumper, rig.window.checked("jj")); };
    rig.type('j');
    EXPECT_EQ(state(), std::tuple(1, false));
    rig.click("jj");
    EXPECT_EQ(state(), std::tuple(0, true));
    rig.type('J');
    EXPECT_EQ(state(), std::tuple(1, true));
}

TEST(OtherKeys, OnlyMarkTheDrawingChanged)
{
    for (const int code : {0, 36, 41, 65, 0x78, 0x1B, 0xE9, 0x20AC}) {
        for (const bool letter : {false, true}) {
            Rig rig;
            letter ? rig.type(code) : rig.press(code);
            EXPECT_EQ(rig.outcome(), nothing) << code;
            EXPECT_EQ(rig.form.savedMark, 0);
            EXPECT_EQ(rig.form.penMoved + rig.form.eraseMode + rig.form.autoJumper, 0);
        }
    }
}

} // namespace schemlet
