#include "circuit/supply_panel.h"

#include "platform/event.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

void type(Bench& bench, char letter)
{
    deliver(bench.form, {.kind = Event::Kind::keyPress, .code = letter});
}

void click(Bench& bench, Name control)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = control});
}

/// As the toolkit does it: the option is on before its click is reported.
void choose(Bench& bench, Name option)
{
    bench.window.at(option).value = 1;
    click(bench, option);
}

void confirm(Bench& bench, const char* text)
{
    bench.window.at(control::Text11).text = text;
    deliver(bench.form, {.kind = Event::Kind::keyPress, .name = control::Text11, .code = character::enter});
}

void escape(Bench& bench)
{
    deliver(bench.form, {.kind = Event::Kind::keyPress, .name = control::panel, .code = character::escape});
}

void place(Bench& bench, Name option, const char* text)
{
    type(bench, option == control::Option2 || option == control::Option3 ? 's' : 'B');
    choose(bench, option);
    confirm(bench, text);
}

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

TEST(Sources, PrintTheValueAtEachHeadingsOwnPlaceAndMoveThePenPastTheSymbol)
{
    struct Case {
        Name option;
        int heading;
        const char* drawn;
        const char* pen;
    };
    const Case cases[] = {
        {control::Option4, heading::right,
         "line 1600 1500 1600 1350\nline 1530 1100 1530 1100\nprint 1530 1100 4.7\nline 1600 1350 1600 1700\n"
         "line 1700 1600 1700 1400\n",
         "1720 1500"},
        {control::Option4, heading::left,
         "line 1600 1500 1600 1350\nline 1600 1350 1600 1700\nline 1400 1750 1400 1750\nprint 1400 1750 4.7\n"
         "line 1500 1600 1500 1400\n",
         "1480 1500"},
        {control::Option4, heading::up,
         "line 1600 1500 1750 1500\nline 1800 1500 1400 1500\nline 1600 1400 1700 1400\nline 1700 1400 1500 1400\n"
         "line 1100 1400 1100 1400\nprint 1100 1400 4.7\n",
         "1600 1380"},
        {control::Option4, heading::down,
         "line 1600 1500 1750 1500\nline 1800 1500 1400 1500\nline 1600 1600 1700 1600\nline 1700 1600 1500 1600\n"
         "line 1800 1500 1800 1500\nprint 1800 1500 4.7\nline 1200 1600 1200 1600\n",
         "1600 1620"},
        {control::Option5, heading::right,
         "line 1600 1500 1600 1400\nline 1600 1400 1600 1600\nline 1700 1650 1700 1300\nline 1500 1050 1500 1050\n"
         "print 1500 1050 4.7\n",
         "1720 1500"},
        {control::Option5, heading::left,
         "line 1600 1500 1600 1400\nline 1600 1400 1600 1600\nline 1450 1700 1450 1700\nprint 1450 1700 4.7\n"
         "line 1500 1650 1500 1300\n",
         "1480 1500"},
        {control::Option5, heading::up,
         "line 1600 1500 1500 1500\nline 1490 1500 1730 1500\nline 1700 1400 1400 1400\nline 1100 1380 1100 1380\n"
         "print 1100 1380 4.7\nline 1400 1400 1800 1400\n",
         "1600 1380"},
        {control::Option5, heading::down,
         "line 1600 1500 1500 1500\nline 1490 1500 1730 1500\nline 1700 1600 1400 1600\nline 1800 1430 1800 1430\n"
         "print 1800 1430 4.7\nline 1400 1600 1800 1600\n",
         "1600 1620"},
        {control::Option3, heading::right,
         "circle 1800 1500 200\nline 1600 1450 1600 1450\nprint 1600 1450 4.7\nline 1850 1450 1850 1450\n"
         "print 1850 1450 V ...\n",
         "2010 1500"},
        {control::Option3, heading::up,
         "circle 1600 1300 200\nline 1400 1250 1400 1250\nprint 1400 1250 4.7\nline 1650 1250 1650 1250\n"
         "print 1650 1250 V ...\n",
         "1600 1090"},
        {control::Option2, heading::left,
         "circle 1400 1500 200\nline 1200 1450 1200 1450\nprint 1200 1450 4.7\nline 1450 1450 1450 1450\n"
         "print 1450 1450 A ...\n",
         "1190 1500"},
        {control::Option2, heading::down,
         "circle 1600 1700 200\nline 1400 1650 1400 1650\nprint 1400 1650 4.7\nline 1650 1650 1650 1650\n"
         "print 1650 1650 A ...\n",
         "1600 1910"},
        {control::Option4, 7, "", "1600 1500"},
        {control::Option2, 6, "", "1600 1500"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.option) + " " + std::to_string(c.heading));
        Bench bench;
        bench.form.heading = c.heading;
        bench.surface.setForeColor(0x0000FF);
        place(bench, c.option, " 4.70V");
        EXPECT_EQ(bench.drawn(), c.drawn);
        EXPECT_EQ(bench.pen(), c.pen);
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.surface.foreColor, black);
        EXPECT_EQ(bench.window.at(control::Text11).text, "");
    }
}

TEST(Sources, SuppliesAreSummedAndBatteriesReplaced)
{
    Bench bench;
    for (const auto& [option, text] : {std::pair{control::Option3, "5"},
                                       {control::Option3, "7"},
                                       {control::Option2, "-0.5"},
                                       {control::Option2, ""},
                                       {control::Option4, "9"},
                                       {control::Option4, "6"},
                                       {control::Option5, "x"}}) {
        place(bench, option, text);
    }
    EXPECT_EQ(bench.form.supplyVoltage, 12);
    EXPECT_EQ(bench.form.supplyCurrent, -0.5);
    EXPECT_EQ(bench.form.batteryPositive, 6);
    EXPECT_EQ(bench.form.batteryNegative, 0);
    EXPECT_NE(bench.drawn().find("print 2830 1450 0\n"), std::string::npos) << "what is no number is drawn as 0";
}

TEST(SupplyPanel, ShowsWhatEachStepNeedsAndGivesTheKeyboardBack)
{
    Bench bench;
    EXPECT_EQ(shown(bench), "");
    type(bench, 'S');
    EXPECT_EQ(shown(bench), "panel sup ");
    EXPECT_EQ(bench.window.placedAwayFrom.x, 1600);
    EXPECT_EQ(bench.window.focused, ""); // arrow keys draw on
    choose(bench, control::Option3);
    EXPECT_EQ(shown(bench), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(bench.window.focused, control::Text11);
    EXPECT_TRUE(bench.window.at(control::Text11).enabled);
    confirm(bench, "5");
    EXPECT_EQ(shown(bench), "");
    EXPECT_EQ(bench.window.focused, control::Canvas);
    for (const Name option : {control::Option2, control::Option3, control::Option4, control::Option5}) {
        EXPECT_EQ(bench.window.at(option).value, 0);
    }
}

TEST(SupplyPanel, CancelDrawsAndSumsNothingAndKeepsTheText)
{
    for (const char letter : {'s', 'b'}) {
        for (const bool chosen : {false, true}) {
            for (const bool byKey : {false, true}) {
                Bench bench;
                type(bench, letter);
                if (chosen) {
                    choose(bench, letter == 's' ? control::Option2 : control::Option5);
                    bench.window.at(control::Text11).text = "33";
                }
                if (byKey) {
                    escape(bench);
                } else {
                    click(bench, letter == 's' ? control::Command8 : control::Command7);
                }
                EXPECT_FALSE(bench.window.at(control::panel).visible);
                EXPECT_EQ(bench.window.focused, control::Canvas);
                EXPECT_FALSE(bench.window.at(control::Text11).enabled);
                EXPECT_FALSE(bench.window.at(control::Command3).enabled);
                EXPECT_EQ(bench.window.at(control::Text11).text, chosen ? "33" : "");
                EXPECT_EQ(bench.drawn(), "");
                EXPECT_EQ(bench.pen(), "1600 1500");
                place(bench, letter == 's' ? control::Option4 : control::Option3, "5");
                EXPECT_EQ(bench.pen(), letter == 's' ? "1720 1500" : "2010 1500"); // that one alone
            }
        }
    }
}

TEST(SupplyPanel, EscapeCancelsTheFamilyOpenedLastThenTheOther)
{
    Bench bench;
    type(bench, 's');
    type(bench, 'b');
    escape(bench);
    EXPECT_EQ(shown(bench).substr(0, 10), "panel sup ");
    escape(bench);
    EXPECT_FALSE(bench.window.at(control::panel).visible);
}

TEST(SupplyPanel, OneClickDrawsABatteryAndASupplyOneAfterTheOther)
{
    Bench bench;
    type(bench, 'b');
    choose(bench, control::Option4);
    choose(bench, control::Option5); // takes the place of the other battery
    type(bench, 's');
    choose(bench, control::Option2);
    confirm(bench, "3");
    EXPECT_EQ(bench.pen(), "2130 1500"); // 120 and 410 further
    EXPECT_EQ(bench.form.batteryPositive, 0);
    EXPECT_EQ(bench.form.batteryNegative, 3);
    EXPECT_EQ(bench.form.supplyCurrent, 3);
    EXPECT_FALSE(bench.window.at(control::panel).visible);
}

TEST(SupplyPanel, ConfirmedWithoutAKindDrawsNothingAndStaysOpen)
{
    Bench bench;
    type(bench, 's');
    choose(bench, control::Option3);
    type(bench, 's'); // takes the choice back
    bench.window.at(control::Option3).value = 0;
    confirm(bench, "5");
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.form.supplyVoltage, 0);
    EXPECT_EQ(shown(bench), "panel sup ");
}

TEST(SupplyPanel, AnOverflowInTheTextLeavesEverythingAsItIs)
{
    Bench bench;
    type(bench, 's');
    choose(bench, control::Option3);
    bench.dialogs.expect("Schemlet 2.0", 0);
    confirm(bench, "1e999");
    EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with("Overflow"));
    EXPECT_EQ(shown(bench), "panel sup Command3 Command8 Text11 Label12 ");
    EXPECT_EQ(bench.window.at(control::Text11).text, "1e999");
    EXPECT_EQ(bench.drawn(), "");
}

TEST(SupplyPanel, AnOverflowOfASumLeavesSumPenAndDrawingAndUsesTheChoicesUp)
{
    Bench bench;
    bench.form.supplyVoltage = 1.7e308;
    type(bench, 'b');
    choose(bench, control::Option4);
    type(bench, 's');
    choose(bench, control::Option3);
    bench.dialogs.expect("Schemlet 2.0", 0);
    confirm(bench, "1e308");
    EXPECT_EQ(bench.form.supplyVoltage, 1.7e308);
    EXPECT_EQ(bench.pen(), "1720 1500"); // the battery comes first
    EXPECT_FALSE(bench.window.at(control::panel).visible);
    place(bench, control::Option2, "5");
    EXPECT_EQ(bench.pen(), "2130 1500"); // no second battery
}
