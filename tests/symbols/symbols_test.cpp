// Oddities of the library; what each symbol draws and asks is in the golden record.

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

/// Diodes and gates are red, and nothing is asked.
struct RedBench : Bench {
    RedBench()
    {
        dialogs.picked = red;
        click("diodescolor");
        click("gatescolor");
        form.confirm.fill(0);
    }
};

} // namespace

TEST(Library, OfTheDiodesOnlyAPNDiodeThatWasAskedForKeepsItsColour)
{
    for (const Name diode : {"diode", "pndoide", "npdiode", "tunneldiode"}) {
        for (const bool asked : {false, true}) {
            RedBench bench;
            if (asked) {
                bench.click("dii");
                bench.dialogs.always = {answer::yes, ""};
            }
            bench.click(diode);
            EXPECT_EQ(bench.surface.foreColor, diode == "pndoide" && asked ? red : black) << diode << asked;
        }
    }
}

TEST(Library, GoesAheadAlsoWhereTheHeadingLetsNothingBeDrawn)
{
    RedBench bench;
    bench.window.setLeft(control::Picture1, 77);
    bench.form.heading = 7;
    bench.click("not");
    EXPECT_EQ(bench.outcome(), nothing); // the marker comes to the pen
    EXPECT_EQ(bench.surface.foreColor, red);
    bench.click("pndoide");
    bench.click("npdiode");
    EXPECT_EQ(bench.form.diodeCount, 2);
}
