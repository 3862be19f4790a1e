#include "tests/gui/pixels.h"
#include "tests/gui/program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

namespace schemlet {

TEST(Program, DrawsALoopWithRunsADotAndALabelAndCopiesItWhileTextBoxesKeepTheirKeys)
{
    Program program;
    const auto waitForInk = [&](const char* what, int x, int y, bool inked = true) {
        waitUntil(what, [&] { return program.inked(x, y) == inked; });
    };
    program.keys("ctrl+t ctrl+Right ctrl+KP_Down ctrl+Left ctrl+Up"); // from 106, 100 by 33 pixels each way
    waitForInk("a closed loop", 106, 102);
    EXPECT_TRUE(program.inked(139, 131) && program.inked(108, 133));
    EXPECT_FALSE(program.inked(102, 100) || program.inked(106, 96));

    program.keys("ctrl+d");
    waitForInk("a dot", 102, 100);
    program.open("alt+Left F2", "LABEL");
    program.type("In");
    program.answer("LABEL", "Return");
    program.waitForText("Label drawn: In");
    EXPECT_FALSE(inkedPart(program.canvas().copy(80, 93, 22, 13)).isNull());

    const auto copied = [] { return QGuiApplication::clipboard()->image(); };
    program.keys("ctrl+Insert");
    waitUntil("the drawing on the clipboard", [&] { return copied().height() == 39 + 20; });
    QGuiApplication::clipboard()->clear();
    program.clickOn("push button", "Copy the drawing");
    waitUntil("the drawing once more", [&] { return !copied().isNull(); });

    program.open("F4 r", "RESISTANCE"); // nothing to repeat before
    program.answer("RESISTANCE", "Escape");
    program.open("alt+Down F4", "RESISTANCE");
    program.answer("RESISTANCE", "Escape");

    program.keys("s alt+v 2 F2 F4 ctrl+d alt+Left alt+Right ctrl+Left ctrl+Insert ctrl+shift+c 1 Return");
    waitForInk("a supply below the pen", 93, 113);
    program.keys("ctrl+z");
    program.waitForText("Undone: Supply");
    program.keys("ctrl+z");
    program.waitForText("Undone: label");
}

} // namespace schemlet
