#include "tests/gui/pixels.h"
#include "tests/gui/program.h"

#include <csignal>
#include <gtest/gtest.h>

namespace schemlet {

// Windows, menus and the toolbox on a real screen.

TEST(Program, ShowsSplashThenMainWindowThenHelpWithoutTheKeyboard)
{
    Program program(Program::Stage::splash);
    program.waitForHelp();
    EXPECT_FALSE(Program::isOpen("Schemlet 2.0"));
    program.keys("Right Right Right");
    program.closeHelp();
    waitUntil("wire", [&] { return program.inked(114, 100); });

    const auto waitForHeight = [&](int height) {
        waitUntil("the height", [&] { return Program::heightsOf("Help") == QList<int>({height}); });
    };
    program.open("F1", "Help");
    waitForHeight(214);
    program.keys("space");
    waitForHeight(337);
    EXPECT_TRUE(Program::close("Help"));
    program.waitForMainWindow();
    for (const char* const closing : {"Escape", "alt+c", "Return"}) {
        EXPECT_FALSE(Program::isOpen("Help"));
        program.open("F1", "Help");
        waitForHeight(337); // as it was left
        program.answer("Help", closing);
    }
}

TEST(Program, EndsWithItsMainWindowEvenIfOthersAreOpen)
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

TEST(Program, EndsOnSignalsAndLeavesNothingAtHome)
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

TEST(Program, OpensMenusAndWindowsByKeyboard)
{
    Program program;
    for (const auto& [keys, window] : {std::pair{"alt+f Right Right Up Return", "Output"},
                                       {"alt+f Right Right Right m Down Return", "This draws a DC MOTOR"},
                                       {"alt+l h d", "This draws a DIAC THYRISTOR"},
                                       {"alt+f Left Left Left Left Left Return", "Color of resistances"},
                                       {"alt+f Left o", "Help"},
                                       {"F1", "Help"},
                                       {"ctrl+x", "Schemlet 2.0"},
                                       {"ctrl+q", "Schemlet 2.0"},
                                       {"Menu h", "Help"},
                                       {"shift+F10 f", "Color of wires"}}) {
        SCOPED_TRACE(keys);
        program.open(keys, window);
        program.answer(window, "Escape");
    }
}

TEST(Program, ToolboxFollowsTheMouse)
{
    Program program;
    const auto corner = [&] {
        const QImage canvas = program.canvas();
        return inkedPart(canvas.copy(canvas.rect().adjusted(150, 0, 0, 0))).topLeft() + QPoint(150, 0);
    };
    const QPoint handle = corner() + QPoint(20, 8);
    program.click(1, handle.x(), handle.y());
    for (const int place : {300, 200}) {
        program.moveMouse(place, place);
        waitUntil("the toolbox", [&] { return corner() == QPoint(place, place); });
    }
    program.moveMouse(202, 202); // over the toolbox, which stops
    program.click(1, 100, 500);
    program.keys("Down Down");
    waitUntil("wire from there", [&] { return program.inked(100, 505); });
    EXPECT_EQ(corner(), QPoint(200, 200));

    program.click(1, 190, 250);
    const QRect toolbox(200, 200, 180, 300);
    const QImage before = program.canvas().copy(toolbox);
    program.keys("Right", 20);
    waitUntil("wire up to the toolbox", [&] { return program.inked(198, 250); });
    EXPECT_TRUE(program.canvas().copy(toolbox) == before) << "ink was seen on the toolbox";
}

} // namespace schemlet
