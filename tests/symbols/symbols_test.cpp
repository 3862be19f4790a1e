// Oddities of the library; what each symbol draws and asks is in the golden record.

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr Color red = 0x0000FF;

/// Diodes and gates are red, and nothing is asked.
struct RedRig : Rig {
    RedRig()
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
    for (const std::string_view diode : {"diode", "pndoide", "npdiode", "tunneldiode"}) {
        for (const bool asked : {false, true}) {
            RedRig rig;
            if (asked) {
                rig.click("dii");
                rig.dialogs.always = {answer::yes, ""};
            }
            rig.click(diode);
            EXPECT_EQ(rig.surface.foreColor, diode == "pndoide" && asked ? red : black) << diode << asked;
        }
    }
}

TEST(Library, GoesAheadAlsoWhereTheHeadingLetsNothingBeDrawn)
{
    RedRig rig;
    rig.window.setLeft(control::Picture1, 77);
    rig.form.heading = 7;
    rig.click("not");
    EXPECT_EQ(rig.outcome(), nothing); // the marker comes to the pen
    EXPECT_EQ(rig.surface.foreColor, red);
    rig.click("pndoide");
    rig.click("npdiode");
    EXPECT_EQ(rig.form.diodeCount, 2);
}

} // namespace schemlet
