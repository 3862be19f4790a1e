#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// Menus, short-cuts and toolbox.

namespace {

/// What a command brings: a window, which is closed again, or a text on a label.
void expect(Program& program, const char* window, const char* text)
{
    if (text != nullptr) {
        program.waitForText(text);
    }
    if (window != nullptr) {
        program.answer(window, "Escape");
    }
}

} // namespace

TEST(Program, MenusOpenByKeyboardAndByMouseAndShortCutsWork)
{
    struct Way {
        const char* keys = nullptr;
        const char* window = nullptr;
        const char* text = nullptr;
        QStringList clicks{}; // on these menu items
    };
    const Way ways[] = {
        {"alt+f p", "Schemlet 2.0", printQuestion, {"File", "Print"}},
        {"alt+f Right Right Up Return", "Output", nullptr, {"View", "Output"}},
        {"alt+f Right Right Right m Down Return", "This draws a DC MOTOR"},
        {"alt+l h d", "This draws a DIAC THYRISTOR", nullptr, {"Electronic Components", "Thyristors", "DIAC"}},
        {"alt+f Left Left Left Left Left Return", "Color of resistances", nullptr, {"Components Color", "Resistance"}},
        {"alt+f Left Left Left Left Down Return",
         "Canvas color: wipes the drawing, Cancel too",
         nullptr,
         {"Form Color", "Backcolor"}},
        {"alt+f Left o", "Help", nullptr, {"Help", "How to use"}},
        {"F1", "Help"},
        {"ctrl+x", "Schemlet 2.0", saveQuestion},
        {"ctrl+q", "Schemlet 2.0", saveQuestion},
        {"Menu h", "Help"},
        {"shift+F10 f", "Color of wires"},
    };
    Program program;
    for (const auto& [keys, window, text, clicks] : ways) {
        SCOPED_TRACE(keys);
        program.keys(keys);
        expect(program, window, text);
        if (!clicks.isEmpty()) {
            program.clickMenus(clicks);
            expect(program, window, text);
        }
    }
    program.clickMenus({"Edit", "Eraser"});
    program.waitForText("Erase mode");
    EXPECT_FALSE(program.shows("menu item", "Rightclick")); // it opens at the mouse or the pen instead
    program.click(3, 300, 300);
    program.clickMenus({"Line"});
    program.waitForText("Line");
    program.click(1, 300, 300);
    program.keys("Menu");
    EXPECT_TRUE(QRect(300, 300, 10, 10).contains(program.onCanvas(program.placeOf("menu item", "Eraser")).topLeft()));
}

TEST(Program, ToolboxHintsAtItsButtonsAndFollowsTheMouse)
{
    Program program;
    program.hoverOver("push button", "AND Gate");
    program.waitForText("Click to draw AND Gate");
    program.clickOn("push button", "AND Gate");
    program.answer("This draws an AND GATE", "Escape");

    const auto corner = [&] { return program.onCanvas(program.placeOf("panel", "ToolBox")).topLeft(); };
    program.clickOn("label", "Click once and drag");
    for (const int place : {300, 200}) {
        program.moveMouse(place, place);
        waitUntil("the toolbox", [&] { return corner() == QPoint(place, place); });
    }
    program.moveMouse(202, 202); // which is over it now, and stops it
    program.moveMouse(100, 500);
    program.waitForText("Press F1 for Help");
    EXPECT_EQ(corner(), QPoint(200, 200));
}

} // namespace schemlet
