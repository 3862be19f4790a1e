#include "tests/gui/program.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string_view>

namespace schemlet {

// The windows beside the main one, as they come and go on a real screen.

TEST(Program, SplashShowsProgressAndMakesWayForTheMainWindowEvenIfItIsClosed)
{
    for (const std::string_view way : {"waiting", "its frame"}) {
        SCOPED_TRACE(way);
        Program program(Program::Stage::splash);
        if (way == "its frame") {
            program.closeActiveWindow();
        } else {
            int value = 0;
            waitUntil("progress", [&] {
                const auto bar = program.find("progress bar", "Loading");
                value = bar ? static_cast<int>(program.bus().value(*bar)) : 100; // who looks too late sees nothing
                return value > 0;
            });
            EXPECT_TRUE(value % 5 == 0 && value <= 100) << value;
        }
        program.waitForHelp();
        EXPECT_FALSE(program.isOpen("Schemlet 2.0"));
    }
}

TEST(Program, HelpAtStartLeavesTheKeyboardAndLaterSlidesOpenByKeyAndMouse)
{
    Program program(Program::Stage::help);
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    program.keys({"Right", "Right", "Right"});
    waitUntil("wire", [&] { return program.inked(114, 100); });

    const auto showsKeys = [&](bool open) {
        waitUntil("the height", [&] { return program.placeOf("dialog", "Help").height() == (open ? 337 : 214); });
    };
    program.keys({"F1"});
    program.waitForWindow("Help");
    showsKeys(false);
    const QRect help = program.onCanvas(program.placeOf("dialog", "Help"));
    EXPECT_FALSE(help.intersects(toolbox) || help.intersects({106, 60, 600, 80})) << help.x() << ' ' << help.y();
    program.keys({"space"});
    showsKeys(true);
    program.hoverOver("label", "Show Shortcut Keys");
    program.xdotool({"click", "3", "mousedown", "1", "mousemove_relative", "0", "60", "mouseup", "1"});
    program.clickOn("label", "Show Shortcut Keys"); // only this one counts
    showsKeys(false);
    program.keys({"space"});
    showsKeys(true);
    for (const std::string_view closing : {"Escape", "alt+c", "its frame", "Return"}) {
        if (closing == "its frame") {
            program.closeActiveWindow();
        } else {
            program.keys({closing.data()});
        }
        program.waitForMainWindow();
        EXPECT_FALSE(program.isOpen("Help"));
        program.keys({"F1"});
        program.waitForWindow("Help");
        showsKeys(true); // as it was left
    }
}

TEST(Program, EndsWithItsMainWindowWhateverElseIsOpen)
{
    Program program(Program::Stage::help);
    for (const char* const button : {"Return", "alt+o", "alt+c", "Escape"}) {
        program.keys({"ctrl+a"});
        program.answer("About Schemlet v2.0", button);
    }
    program.keys({"ctrl+a"});
    program.waitForWindow("About Schemlet v2.0");
    EXPECT_EQ(QProcess::execute("wmctrl", {"-c", " - Schemlet 2.0"}), 0);
    program.waitForWindow("Schemlet 2.0");
    program.keys({"n"});
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, SignalsEndItWhateverIsOpenAndNothingIsLeftAtHome)
{
    struct Case {
        int signal;
        const char* key;
        const char* window;
    };
    for (const auto& [signal, key, window] : {Case{SIGTERM, "ctrl+s", "Save"}, Case{SIGINT, "ctrl+f", "Color of wires"},
                                              Case{SIGHUP, "ctrl+x", "Schemlet 2.0"}}) {
        SCOPED_TRACE(signal);
        Program program;
        program.keys({"ctrl+f"});
        program.answer("Color of wires", "Return");
        program.keys({key});
        program.waitForWindow(window);
        program.signal(signal);
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.filesAtHome(), QStringList());
    }
}

} // namespace schemlet
