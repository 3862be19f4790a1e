#include "shell/events.h"

#include "tests/support/rig.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Deliver, LetsWhatComesTooEarlyWaitForTheBoxesAnswerButNotTheClock)
{
    Rig rig;
    rig.dialogs.replyTo = [&rig](Asked /*text*/) {
        rig.events.deliver({.kind = Event::Kind::keyDown, .code = key::down});
        rig.events.deliver({.kind = Event::Kind::mouseUp, .code = button::left, .place = {30, 450}});
        rig.events.deliver({.kind = Event::Kind::tick, .name = control::statusTimer.text()});
        EXPECT_EQ(rig.form.y, 1500);
        EXPECT_EQ(rig.form.statusDue, 0);
        return "5";
    };
    rig.run("r");
    EXPECT_EQ(rig.form.resist, 5);
    EXPECT_EQ(rig.form.x, 2650);
    EXPECT_EQ(rig.form.y, 1550); // past the resistor, then down
    EXPECT_EQ(rig.window.at("Picture1").left, 30);
}

} // namespace schemlet
