#include "circuit/supply_panel.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

std::string shown(Bench& bench)
{
    std::string names;
    for (const Name name : {control::panel, control::sup, control::bat, control::Command3, control::Command7,
                            control::Command8, control::Text11, control::Label12, control::Label28}) {
        names += bench.window.at(name).visible ? std::string(name) + " " : "";
    }
    return names;
}

} // namespace

TEST(Sources, SuppliesAreSummedAndBatteriesReplaced)
{
    Bench bench;
    for (const char* const source : {"V5", "V7", "A-0.5", "A", "+9", "+6", "-x"}) {
        bench.enter(source);
    }
    EXPECT_EQ(bench.form.supplyVoltage, 12);
    EXPECT_EQ(bench.form.supplyCurrent, -0.5);
    EXPECT_EQ(bench.form.batteryPositive, 6);
    EXPECT_EQ(bench.form.batteryNegative, 0);
    EXPECT_NE(bench.drawn().find("print 2830 1450 0\n"), std::string::npos) << "what is no number is drawn as 0";
}

TEST(SupplyPanel, ShowsWhatEachStepNeedsAndGivesTheKeyboardToTheValue)
{
    Bench bench;
    EXPECT_EQ(shown(bench), "");
    bench.type('S');
    EXPECT_EQ(shown(bench), "panel sup ");
    EXPECT_EQ(bench.window.at(control::panel).awayFrom.x, 1600);
    EXPECT_EQ(bench.window.focused, ""); // arrow keys draw on
    bench.choose(control::Option3);
    EXPECT_EQ(shown(bench), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(bench.window.focused, control::Text11);
    EXPECT_TRUE(bench.window.at(control::Text11).enabled);
    bench.typeInto(control::Text11, '5'); // is only typed
    EXPECT_EQ(bench.outcome(), nothing);
    bench.confirm("5");
    EXPECT_EQ(shown(bench), "");
    EXPECT_EQ(bench.window.at(control::Text11).text, "");
    for (const Name option : {control::Option2, control::Option3, control::Option4, control::Option5}) {
        EXPECT_EQ(bench.window.at(option).value, 0);
    }
}

TEST(SupplyPanel, CancelDrawsAndSumsNothingAndKeepsTheText)
{
    struct Family {
        char letter;
        Name option, cancel;
        const char* other;
        const char* pen; ///< after the other kind alone
    };
    for (const auto& [letter, option, cancel, other, pen] :
         {Family{'s', control::Option2, control::Command8, "+5", "1720 1500"},
          Family{'b', control::Option5, control::Command7, "V5", "2010 1500"}}) {
        for (const auto& [chosen, byKey] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
            Bench bench;
            bench.type(letter);
            if (chosen) {
                bench.choose(option);
                bench.window.at(control::Text11).text = "33";
            }
            byKey ? bench.typeInto(control::panel, character::escape) : bench.click(cancel);
            EXPECT_FALSE(bench.window.at(control::panel).visible);
            EXPECT_FALSE(bench.window.at(control::Text11).enabled);
            EXPECT_FALSE(bench.window.at(control::Command3).enabled);
            EXPECT_EQ(bench.window.at(control::Text11).text, chosen ? "33" : "");
            EXPECT_EQ(bench.outcome(), nothing);
            bench.enter(other);
            EXPECT_EQ(bench.pen(), pen);
        }
    }
}

TEST(SupplyPanel, EscapeCancelsTheFamilyOpenedLastThenTheOther)
{
    for (const auto& [first, second, left] : {std::tuple{'s', 'b', "panel sup "}, {'b', 's', "panel bat "}}) {
        Bench bench;
        bench.type(first);
        bench.type(second);
        bench.typeInto(control::panel, character::escape);
        EXPECT_EQ(shown(bench), left);
        bench.typeInto(control::panel, character::escape);
        EXPECT_FALSE(bench.window.at(control::panel).visible);
    }
}

TEST(SupplyPanel, OneClickDrawsABatteryAndASupplyOneAfterTheOther)
{
    Bench bench;
    bench.type('b');
    bench.choose(control::Option4);
    bench.choose(control::Option5); // takes the place of the other battery
    bench.enter("A3");
    EXPECT_EQ(bench.pen(), "2130 1500"); // 120 and 410 further
    EXPECT_EQ(bench.form.batteryPositive, 0);
    EXPECT_EQ(bench.form.batteryNegative, 3);
    EXPECT_EQ(bench.form.supplyCurrent, 3);
    EXPECT_FALSE(bench.window.at(control::panel).visible);
}

TEST(SupplyPanel, ConfirmedWithoutAKindDrawsNothingAndStaysOpen)
{
    for (const auto& [family, kind, left] :
         {std::tuple{'s', control::Option3, "panel sup "}, {'b', control::Option4, "panel bat "}}) {
        Bench bench;
        bench.type(family);
        bench.choose(kind);
        bench.type(family); // takes the choice back
        bench.confirm("5");
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.form.supplyVoltage, 0);
        EXPECT_EQ(shown(bench), left);
    }
}

TEST(SupplyPanel, AnOverflowInTheTextLeavesEverythingAsItIs)
{
    Bench bench;
    bench.dialogs.expect("Schemlet 2.0", 0);
    bench.enter("V1e999");
    EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with("Overflow"));
    EXPECT_EQ(shown(bench), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(bench.window.at(control::Text11).text, "1e999");
    EXPECT_EQ(bench.drawn(), "");
}

TEST(SupplyPanel, AnOverflowOfASumLeavesSumPenAndDrawingAndUsesTheChoicesUp)
{
    Bench bench;
    bench.form.supplyVoltage = 1.7e308;
    bench.type('b');
    bench.choose(control::Option4);
    bench.dialogs.expect("Schemlet 2.0", 0);
    bench.enter("V1e308");
    EXPECT_EQ(bench.form.supplyVoltage, 1.7e308);
    EXPECT_EQ(bench.pen(), "1720 1500"); // the battery comes first
    EXPECT_FALSE(bench.window.at(control::panel).visible);
    bench.enter("A5");
    EXPECT_EQ(bench.pen(), "2130 1500"); // no second battery
}
