#include "tests/gui/desk.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string_view>

// The windows beside the main one, as they come and go on a real screen.

TEST(Program, SplashMakesWayForTheMainWindowEvenIfItIsClosed)
{
    for (const std::string_view way : {"waiting", "its frame", "Escape"}) {
        Program program(Program::Stage::splash);
        if (way == "its frame") {
            program.closeActiveWindow();
        } else if (way == "Escape") {
            program.keys({"Escape"});
        }
        program.waitForHelp();
        EXPECT_TRUE(program.visibleWindow("Schemlet 2.0").isEmpty()) << way;
    }
}

TEST(Program, HelpAtStartLeavesTheKeyboardAndLaterSlidesOpenByKeyAndMouse)
{
    Program program(Program::Stage::help);
    EXPECT_EQ(program.heightOf("Help"), 214);
    program.keys({"Right", "Right", "Right"});
    waitUntil("wire", [&] { return program.inked(114, 100); });

    const auto showsKeys = [&](bool open) {
        waitUntil("the height", [&] { return program.heightOf("Help") == (open ? 337 : 214); });
    };
    program.keys({"F1"});
    program.waitForWindow("Help");
    program.keys({"space"});
    showsKeys(true);
    program.xdotool({"mousemove", "--window", program.visibleWindow("Help"), "230", "194", "click", "1"});
    showsKeys(false);
    program.keys({"space"});
    showsKeys(true);
    for (const char* const closing : {"Escape", "alt+c", "its frame"}) {
        if (std::string_view(closing) == "its frame") {
            program.closeActiveWindow();
        } else {
            program.keys({closing});
        }
        program.waitForMainWindow();
        EXPECT_TRUE(program.visibleWindow("Help").isEmpty());
        program.keys({"F1"});
        program.waitForWindow("Help");
        showsKeys(true); // as it was left
    }
    program.keys({"Return"});
    program.waitForMainWindow();
}

TEST(Program, EndsWithItsMainWindowWhateverElseIsOpen)
{
    Program program(Program::Stage::help);
    program.keys({"ctrl+a"});
    for (const char* const button : {"Return", "alt+o", "alt+c", "Escape"}) {
        program.waitForWindow("About Schemlet v2.0");
        program.keys({button});
        program.waitForMainWindow();
        program.keys({"ctrl+a"});
    }
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
    for (const auto& [signal, key, window] : {Case{SIGTERM, "ctrl+s", "Save"}, Case{SIGINT, "ctrl+b", "Select Color"},
                                              Case{SIGHUP, "ctrl+x", "Schemlet 2.0"}}) {
        SCOPED_TRACE(signal);
        Program program;
        program.keys({"ctrl+f"});
        program.waitForWindow("Select Color");
        program.keys({"Return"});
        program.waitForMainWindow();
        program.keys({key});
        program.waitForWindow(window);
        program.signal(signal);
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.filesAtHome(), QStringList());
    }
}
