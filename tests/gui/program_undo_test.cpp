#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Program, UndoesByKeysAndButtonsAndLeavesTheKeysToTextBoxes)
{
    Program program;
    const auto waitForWire = [&](bool right, bool down) {
        waitUntil("undo or redo", [&] { return program.inked(110, 100) == right && program.inked(116, 108) == down; });
    };
    program.keys("ctrl+t Right Right Right Down Down Down");
    waitForWire(true, true);
    program.keys("ctrl+z");
    waitForWire(true, false);
    program.waitForText("Undone: wire");
    program.clickOn("push button", "Undo");
    waitForWire(false, false);
    program.keys("ctrl+y");
    waitForWire(true, false);
    program.keys("ctrl+z");
    waitForWire(false, false);
    program.clickOn("push button", "Redo");
    program.keys("ctrl+shift+z"); // the button has not taken the keyboard
    waitForWire(true, true);

    const auto circle = [&] { return program.inked(116, 137); };
    program.keys("s alt+v 1 ctrl+z 7 Return");
    waitUntil("a supply at the wire's end", circle);
    EXPECT_TRUE(program.inked(116, 108));
    program.keys("ctrl+z");
    waitUntil("no supply", [&] { return !circle(); });
    program.keys("s alt+v ctrl+y ctrl+shift+z Escape");
    waitUntil("no panel", [&] { return !program.shows("panel", "Supply and battery"); });
    EXPECT_FALSE(circle());

    program.xdotool("keydown ctrl keydown z");
    waitForWire(false, false);
    program.xdotool("keyup z keyup ctrl");
    program.keys("Right Right");
    waitForWire(true, false);
}

} // namespace schemlet
