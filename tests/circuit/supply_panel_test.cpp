#include "circuit/supply_panel.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

std::string shown(Rig& rig)
{
    std::string names;
    for (const Name name : {control::panel, control::sup, control::bat, control::Command3, control::Command7,
                            control::Command8, control::Text11, control::Label12, control::Label28}) {
        names += rig.window.at(name).visible ? std::string(name.text()) + " " : "";
    }
    return names;
}

} // namespace

TEST(Sources, SuppliesAreSummedAndBatteriesReplaced)
{
    Rig rig;
    for (const char* const source : {"V5", "V7", "A-0.5", "A", "+9", "+6", "-x"}) {
        rig.enter(source);
    }
    EXPECT_EQ(rig.form.supplyVoltage, 12);
    EXPECT_EQ(rig.form.supplyCurrent, -0.5);
    EXPECT_EQ(rig.form.batteryPositive, 6);
    EXPECT_EQ(rig.form.batteryNegative, 0);
    EXPECT_NE(rig.drawn().find("print 2830 1450 0\n"), std::string::npos) << "what is no number is drawn as 0";
}

TEST(SupplyPanel, ShowsWhatEachStepNeedsAndGivesTheKeyboardToTheValue)
{
    Rig rig;
    EXPECT_EQ(shown(rig), "");
    rig.type('S');
    EXPECT_EQ(shown(rig), "panel sup ");
    EXPECT_EQ(rig.window.at(control::panel).awayFrom.x, 1600);
    EXPECT_EQ(rig.window.focused, Name()); // arrow keys draw on
    rig.choose(control::Option3);
    EXPECT_EQ(shown(rig), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(rig.window.focused, control::Text11);
    EXPECT_TRUE(rig.window.at(control::Text11).enabled);
    EXPECT_EQ(rig.outcome(), nothing);
    rig.confirm("5");
    EXPECT_EQ(shown(rig), "");
    EXPECT_EQ(rig.window.at(control::Text11).text, "");
    for (const Name option : {control::Option2, control::Option3, control::Option4, control::Option5}) {
        EXPECT_EQ(rig.window.at(option).value, 0);
    }
}

TEST(SupplyPanel, CancelDrawsAndSumsNothingAndKeepsTheText)
{
    struct Family {
        char letter{};
        Name option, cancel;
        const char* other{};
        const char* pen{}; ///< after the other kind alone
    };
    for (const auto& [letter, option, cancel, other, pen] :
         {Family{'s', control::Option2, control::Command8, "+5", "1720 1500"},
          Family{'b', control::Option5, control::Command7, "V5", "2010 1500"}}) {
        for (const auto& [chosen, byKey] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
            Rig rig;
            rig.type(letter);
            if (chosen) {
                rig.choose(option);
                rig.window.at(control::Text11).text = "33";
            }
            byKey ? rig.click(control::panel) : rig.click(cancel);
            EXPECT_FALSE(rig.window.at(control::panel).visible);
            EXPECT_FALSE(rig.window.at(control::Text11).enabled);
            EXPECT_FALSE(rig.window.at(control::Command3).enabled);
            EXPECT_EQ(rig.window.at(control::Text11).text, chosen ? "33" : "");
            EXPECT_EQ(rig.outcome(), nothing);
            rig.enter(other);
            EXPECT_EQ(rig.pen(), pen);
        }
    }
}

TEST(SupplyPanel, EscapeCancelsTheFamilyOpenedLastThenTheOther)
{
    for (const auto& [first, second, left] : {std::tuple{'s', 'b', "panel sup "}, {'b', 's', "panel bat "}}) {
        Rig rig;
        rig.type(first);
        rig.type(second);
        rig.click(control::panel);
        EXPECT_EQ(shown(rig), left);
        rig.click(control::panel);
        EXPECT_FALSE(rig.window.at(control::panel).visible);
    }
}

TEST(SupplyPanel, OneClickDrawsABatteryAndASupplyOneAfterTheOther)
{
    Rig rig;
    rig.type('b');
    rig.choose(control::Option4);
    rig.choose(control::Option5); // takes the place of the other battery
    rig.enter("A3");
    EXPECT_EQ(rig.pen(), "2130 1500"); // 120 and 410 further
    EXPECT_EQ(rig.form.batteryPositive, 0);
    EXPECT_EQ(rig.form.batteryNegative, 3);
    EXPECT_EQ(rig.form.supplyCurrent, 3);
    EXPECT_FALSE(rig.window.at(control::panel).visible);
}

TEST(SupplyPanel, ConfirmedWithoutAKindDrawsNothingAndStaysOpen)
{
    for (const auto& [family, kind, left] :
         {std::tuple{'s', control::Option3, "panel sup "}, {'b', control::Option4, "panel bat "}}) {
        Rig rig;
        rig.type(family);
        rig.choose(kind);
        rig.type(family); // takes the choice back
        rig.confirm("5");
        EXPECT_EQ(rig.drawn(), "");
        EXPECT_EQ(rig.form.supplyVoltage, 0);
        EXPECT_EQ(shown(rig), left);
    }
}

TEST(SupplyPanel, AnOverflowInTheTextLeavesEverythingAsItIs)
{
    Rig rig;
    rig.dialogs.expect("Schemlet 2.0", 0);
    rig.enter("V1e999");
    EXPECT_TRUE(rig.dialogs.lastPrompt.starts_with("Overflow"));
    EXPECT_EQ(shown(rig), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(rig.window.at(control::Text11).text, "1e999");
    EXPECT_EQ(rig.drawn(), "");
}

TEST(SupplyPanel, AnOverflowOfASumLeavesSumPenAndDrawingAndUsesTheChoicesUp)
{
    Rig rig;
    rig.form.supplyVoltage = 1.7e308;
    rig.type('b');
    rig.choose(control::Option4);
    rig.dialogs.expect("Schemlet 2.0", 0);
    rig.enter("V1e308");
    EXPECT_EQ(rig.form.supplyVoltage, 1.7e308);
    EXPECT_EQ(rig.pen(), "1720 1500"); // the battery comes first
    EXPECT_FALSE(rig.window.at(control::panel).visible);
    rig.enter("A5");
    EXPECT_EQ(rig.pen(), "2130 1500"); // no second battery
}

} // namespace schemlet
