#include "tests/gui/pixels.h"
#include "tests/gui/program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

namespace schemlet {

TEST(Program, DrawsALoopByKeysAndButtonsThatNoMenuShows)
{
    Program program;
    const auto waitForInk = [&](const char* what, int x, int y, bool inked = true) {
        waitUntil(what, [&] { return program.inked(x, y) == inked; });
    };
    const auto clickButton = [&](int fromTheRight) { // of the status bar
        program.click(1, program.canvas().width() - fromTheRight, program.canvas().height() + 13);
    };
    program.keys("ctrl+t ctrl+Right ctrl+KP_Down ctrl+Left ctrl+Up"); // from 106, 100 by 33 pixels each way
    waitForInk("a closed loop", 106, 102);
    EXPECT_TRUE(program.inked(139, 131) && program.inked(108, 133));
    EXPECT_FALSE(program.inked(102, 100) || program.inked(106, 96));
    program.keys("ctrl+z");
    waitForInk("no left side", 106, 110, false);
    clickButton(61);
    waitForInk("no bottom", 115, 133, false);
    program.keys("ctrl+y");
    waitForInk("the bottom", 115, 133);
    clickButton(36);
    waitForInk("the left side", 106, 110);

    program.keys("ctrl+d"); // a button has not taken the keyboard
    waitForInk("a dot", 102, 100);
    program.open("alt+Left F2", "LABEL");
    program.type("In");
    program.answer("LABEL", "Return");
    const QRect left(80, 93, 22, 13);
    waitUntil("a label", [&] { return !inkedPart(program.canvas().copy(left)).isNull(); });

    const auto copied = [] { return QGuiApplication::clipboard()->image(); };
    program.keys("ctrl+Insert");
    waitUntil("the drawing on the clipboard", [&] { return copied().height() == 39 + 20; });
    QGuiApplication::clipboard()->clear();
    clickButton(12);
    waitUntil("the drawing once more", [&] { return !copied().isNull(); });

    program.open("r", "RESISTANCE");
    program.answer("RESISTANCE", "Escape");
    program.open("alt+Down F4", "RESISTANCE");
    program.answer("RESISTANCE", "Escape");

    program.keys("s alt+v 2 F2 F4 ctrl+d alt+Left alt+Right ctrl+Left ctrl+Insert ctrl+shift+c");
    program.keys("ctrl+z ctrl+y ctrl+shift+z 1 Return");
    waitForInk("a supply below the pen", 93, 113);
    EXPECT_TRUE(program.inked(102, 100));
    program.keys("ctrl+z");
    waitForInk("no supply", 93, 113, false);
    EXPECT_TRUE(program.inked(102, 100));
}

} // namespace schemlet
