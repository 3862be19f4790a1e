#include "tests/gui/program.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string_view>

namespace schemlet {

// The windows beside the main one, as they come and go on a real screen.

TEST(Program, SplashMakesWayForTheMainWindowAndHelpThatLeavesTheKeyboardAndSlidesOpenByKeyAndMouse)
{
    Program program(Program::Stage::splash);
    program.waitForHelp();
    EXPECT_FALSE(program.isOpen("Schemlet 2.0"));
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    program.keys("Right Right Right");
    waitUntil("wire", [&] { return program.inked(114, 100); });

    const auto waitForKeys = [&](bool open) {
        waitUntil("the height", [&] { return program.placeOf("dialog", "Help").height() == (open ? 337 : 214); });
    };
    program.open("F1", "Help");
    waitForKeys(false);
    const QRect help = program.onCanvas(program.placeOf("dialog", "Help"));
    EXPECT_FALSE(help.intersects(toolbox) || help.intersects({106, 60, 600, 80})) << help.x() << ' ' << help.y();
    program.keys("space");
    waitForKeys(true);
    program.hoverOver("label", "Show Shortcut Keys");
    program.xdotool("click 3 mousedown 1 mousemove_relative 0 60 mouseup 1");
    program.clickOn("label", "Show Shortcut Keys"); // only this one counts
    waitForKeys(false);
    program.keys("space");
    waitForKeys(true);
    EXPECT_TRUE(Program::close("Help"));
    program.waitForMainWindow();
    for (const char* const closing : {"Escape", "alt+c", "Return"}) {
        EXPECT_FALSE(program.isOpen("Help"));
        program.open("F1", "Help");
        waitForKeys(true); // as it was left
        program.answer("Help", closing);
    }
}

TEST(Program, EndsWithItsMainWindowWhateverElseIsOpen)
{
    Program program;
    program.open("F1", "Help");
    program.activate();
    for (const char* const button : {"Return", "alt+o", "alt+c", "Escape"}) {
        program.keys("ctrl+a");
        program.answer("About Schemlet v2.0", button);
    }
    program.open("ctrl+a", "About Schemlet v2.0");
    EXPECT_TRUE(Program::close(" - Schemlet 2.0"));
    program.waitForWindow("Schemlet 2.0");
    program.keys("n");
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, SignalsEndItWhateverIsOpenAndNothingIsLeftAtHome)
{
    for (const auto& [signal, key, window] : {std::tuple{SIGTERM, "ctrl+s", "Save"},
                                              {SIGINT, "ctrl+f", "Color of wires"},
                                              {SIGHUP, "ctrl+x", "Schemlet 2.0"}}) {
        SCOPED_TRACE(signal);
        Program program;
        program.keys("ctrl+f");
        program.answer("Color of wires", "Return");
        program.open(key, window);
        EXPECT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.filesAtHome(), QStringList());
    }
}

} // namespace schemlet
