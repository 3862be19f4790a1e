#include "circuit/output_window.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>
#include <sstream>

namespace schemlet {

namespace {

/// Enters a circuit such as "R10 I1 C4 V5", each component by its letter and value.
void enter(Rig& rig, const std::string& circuit)
{
    std::istringstream parts(circuit);
    for (std::string part; parts >> part;) {
        rig.enter(part);
    }
}

std::string values(Rig& rig)
{
    std::string texts;
    for (const Name value : form4::control::values) {
        texts += (texts.empty() ? "" : " ") + rig.output.at(value).text;
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
        {{"", "0 0 0 0 0 0 0 0 0"}, {"+9 -9", "0 0 0 0 0 0 0 0 0"}},
        {{"C2 C2", "0 0 1 0 0 0 0 0 0"}, {"R10", "10 0 1 0 0 0 0 0 0"}},
        {{"R10 I1 C4", "10 1 4 0.318181832644629 0.2 2 0.25 0 0"},
         // Without a resistance the last three stay; that needs the sum to come back to 0.
         {"R-10 I3", "0 4 4 0.159090916322314 0.2 2 0.25 0 0"},
         // The capacitance is gone: the frequency stays too.
         {"R5 C-4", "5 4 0 0.159090916322314 0.2 2 0.25 0 0"},
         {"C1", "5 4 1 0.0795454581611572 0.4 2 1 0 0"}},
        {{"I1", "0 1 0 0 0 0 0 0 0"}, {"C4", "0 1 4 0.318181832644629 0 0 0 0 0"}},
        {{"V5 V7 A0.5 A", "0 0 0 0 0 0 0 12 0.5"}, {"V-12", "0 0 0 0 0 0 0 0 0.5"}},
        {{"R0 I0 C0", "0 0 0 0 0 0 0 0 0"}},
        {{"I-1 C-4 R-2", "-2 -1 -4 0.318181832644629 -1 -2 -0.25 0 0"}},
        {{"R1E+15 I1E-05", "1E+15 1E-05 0 0 0 0 0 0 0"}},
    };
    for (const auto& run : runs) {
        Rig rig;
        for (const Step& step : run) {
            enter(rig, step.entered);
            rig.click("output");
            EXPECT_EQ(values(rig), step.shown) << step.entered;
        }
    }
}

TEST(OutputWindow, IsFilledAtStartButShownOnlyWhenAskedFor)
{
    Rig rig;
    EXPECT_EQ(values(rig), "0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(rig.output.timesShown, 0);
    enter(rig, "R10 I1 C4");
    rig.output.hide({form4::control::Label29, form4::control::Label24});
    rig.click("output");
    EXPECT_EQ(rig.output.timesShown, 1);
    EXPECT_TRUE(rig.output.visible(form4::control::Label29) && rig.output.visible(form4::control::Label24));
    EXPECT_DOUBLE_EQ(rig.form.capacitiveReactance, 3.142857 / 0.25); // kept, but never shown
    rig.click(form4::control::print, form4::window);
    EXPECT_EQ(rig.output.timesPrinted, 1);
}

TEST(OutputWindow, TellsWhatCannotBeComputedAndShowsWhatComesBefore)
{
    struct Case {
        const char* entered;
        const char* message;
        const char* shown;
    };
    for (const Case& c : {Case{"V5 I-1 C4", "Invalid argument", "0 -1 4 0 0 0 0 0 0"},
                          Case{"V5 I1E+300 C1E-300", "Overflow", "0 1E+300 1E-300 0 0 0 0 0 0"}}) {
        Rig rig;
        enter(rig, c.entered);
        rig.dialogs.expect("Schemlet 2.0", 0);
        rig.click("output");
        EXPECT_TRUE(rig.dialogs.lastPrompt.starts_with(c.message)) << rig.dialogs.lastPrompt;
        EXPECT_EQ(values(rig), c.shown);
        EXPECT_EQ(rig.output.timesShown, 2); // the message takes the keyboard away from it
    }
}

} // namespace schemlet
