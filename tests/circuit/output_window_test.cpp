#include "circuit/output_window.h"

#include "circuit/numbers.h"
#include "platform/event.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

void open(Bench& bench)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = "output"});
}

/// Enters a circuit such as "R10 L1 C4 V5": a letter and a value each.
void enter(Bench& bench, const std::string& circuit)
{
    std::istringstream parts(circuit);
    for (std::string part; parts >> part;) {
        const std::string value = part.substr(1);
        const char letter = part.front();
        if (letter == 'V' || letter == 'A') {
            deliver(bench.form, {.kind = Event::Kind::keyPress, .code = 's'});
            bench.window.at(letter == 'V' ? control::Option3 : control::Option2).value = 1;
            bench.window.at(control::Text11).text = value;
            deliver(bench.form, {.kind = Event::Kind::click, .name = control::Command3});
            continue;
        }
        bench.dialogs.expectInput(letter == 'R'   ? " RESISTANCE "
                                  : letter == 'L' ? " INDUCTANCE "
                                                  : " CAPACITANCE ",
                                  value);
        deliver(bench.form, {.kind = Event::Kind::click,
                             .name = letter == 'R'   ? "resistance"
                                     : letter == 'L' ? "inductance"
                                                     : "capacitance"});
    }
}

std::string values(Bench& bench)
{
    std::string texts;
    for (const Name value : form4::values) {
        texts += (texts.empty() ? "" : " ") + bench.output.at(value).text;
    }
    return texts;
}

} // namespace

TEST(OutputWindow, ShowsTotalsAndWhatFollowsFromThem)
{
    struct Step {
        const char* entered;
        const char* shown; ///< R, L, C, frequency, quality, both reactances, volt, ampere
    };
    // Each row is one run of the program; its steps open the window one after the other.
    const std::vector<std::vector<Step>> runs = {
        {{"", "0 0 0 0 0 0 0 0 0"}},
        {{"C2 C2", "0 0 1 0 0 0 0 0 0"}, {"R10", "10 0 1 0 0 0 0 0 0"}},
        {{"R10 L1 C4", "10 1 4 0.318181832644629 0.2 2 0.25 0 0"},
         // Without a resistance the last three stay; that needs the sum to come back to 0.
         {"R-10 L3", "0 4 4 0.159090916322314 0.2 2 0.25 0 0"},
         // The capacitance is gone: the frequency stays too.
         {"R5 C-4", "5 4 0 0.159090916322314 0.2 2 0.25 0 0"},
         {"C1", "5 4 1 0.0795454581611572 0.4 2 1 0 0"}},
        {{"L1", "0 1 0 0 0 0 0 0 0"}},
        {{"L1 C4", "0 1 4 0.318181832644629 0 0 0 0 0"}, {"R2", "2 1 4 0.318181832644629 1 2 0.25 0 0"}},
        {{"V5 V7 A0.5 A", "0 0 0 0 0 0 0 12 0.5"}, {"V-12", "0 0 0 0 0 0 0 0 0.5"}},
        {{"R0 L0 C0", "0 0 0 0 0 0 0 0 0"}},
        {{"L-1 C-4 R-2", "-2 -1 -4 0.318181832644629 -1 -2 -0.25 0 0"}},
        {{"R1E+15 L1E-05", "1E+15 1E-05 0 0 0 0 0 0 0"}},
    };
    for (const auto& run : runs) {
        Bench bench;
        for (const Step& step : run) {
            enter(bench, step.entered);
            open(bench);
            EXPECT_EQ(values(bench), step.shown) << step.entered;
        }
    }
}

TEST(OutputWindow, BatteriesDoNotChangeIt)
{
    Bench bench;
    deliver(bench.form, {.kind = Event::Kind::keyPress, .code = 'b'});
    bench.window.at(control::Option4).value = 1;
    bench.window.at(control::Text11).text = "9";
    deliver(bench.form, {.kind = Event::Kind::click, .name = control::Command3});
    open(bench);
    EXPECT_EQ(values(bench), "0 0 0 0 0 0 0 0 0");
}

TEST(OutputWindow, KeepsTheReactanceThatItNeverShows)
{
    Bench bench;
    enter(bench, "R10 L1 C4");
    open(bench);
    EXPECT_DOUBLE_EQ(bench.form.capacitiveReactance, 3.142857 / 0.25);
}

TEST(OutputWindow, IsFilledAtStartButShownOnlyWhenAskedFor)
{
    Bench bench;
    EXPECT_EQ(values(bench), "0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(bench.output.timesShown, 0);
    open(bench);
    EXPECT_EQ(bench.output.timesShown, 1);
    deliver(bench.form, {.kind = Event::Kind::click, .window = form4::window, .name = form4::print});
    EXPECT_EQ(bench.output.timesPrinted, 1);
}

TEST(OutputWindow, TellsWhatCannotBeComputedAndShowsWhatComesBefore)
{
    struct Case {
        const char* entered;
        const char* message;
        const char* shown;
    };
    for (const Case& c : {Case{"V5 L-1 C4", "Invalid argument", "0 -1 4 0 0 0 0 0 0"},
                          Case{"V5 L1E+300 C1E-300", "Overflow", "0 1E+300 1E-300 0 0 0 0 0 0"}}) {
        Bench bench;
        enter(bench, c.entered);
        bench.dialogs.expect("Schemlet 2.0", 0);
        open(bench);
        EXPECT_TRUE(bench.dialogs.lastPrompt.starts_with(c.message)) << bench.dialogs.lastPrompt;
        EXPECT_EQ(values(bench), c.shown);
        EXPECT_EQ(bench.output.timesShown, 1);
    }
}
