#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// Menus, short-cuts, toolbar, toolbox and colours.

namespace {

constexpr auto canvasTitle = "Canvas color: wipes the drawing, Cancel too";

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
        {"alt+f Left Left Left Left Down Return", canvasTitle, nullptr, {"Form Color", "Backcolor"}},
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

TEST(Program, MarksToolbarAndToolboxShowAndDoWhatTheySay)
{
    struct Tool {
        const char* role = nullptr;
        const char* name = nullptr;
        const char* hint = nullptr;
        const char* window = nullptr;
        const char* text = nullptr;
    };
    const Tool tools[] = {
        {"push button", "AND Gate", "Click to draw AND Gate", "This draws an AND GATE"},
        {"push button", "Supply", "Click to draw SUPPLY", nullptr, "Type of Supply is"},
        {"push button", "Eraser", "Click to get ERASER", nullptr, "Erase mode"},
        {"push button", "Output", "Click to see the totals and what follows from them", "Output"},
        {"check box", "Eraser", "Click to switch erase mode on or off", nullptr, "Normal mode"},
        {"check box", "Box", "Click to draw rectangles with the mouse", nullptr, "Rectangle"},
    };
    Program program;
    for (const auto& [role, name, hint, window, text] : tools) {
        SCOPED_TRACE(hint);
        program.hoverOver(role, name);
        program.waitForText(hint);
        program.xdotool("click 1");
        expect(program, window, text);
    }
    for (const bool asked : {true, false}) {
        program.clickMenus({"Ask Confirmation"});
        (void)program.placeOf("menu item", "Gates");
        EXPECT_EQ(program.find("menu item", "Gates")->is(Accessible::checked), asked);
        program.clickMenus({"Gates"});
    }
    for (const bool shown : {false, true}) {
        program.keys("ctrl+t ctrl+k ctrl+h");
        waitUntil("toolbox and bars", [&] {
            return program.shows("panel", "ToolBox") == shown && program.shows("status bar", "Status bar") == shown &&
                   program.shows("tool bar", "ToolBar") == shown;
        });
    }
}

TEST(Program, CanvasToolboxAndWiresTakeTheColoursThatArePicked)
{
    Program program;
    const auto pick = [&](const char* key, const char* title, const QString& color) {
        program.open(key, title);
        program.keys("alt+h ctrl+a");
        program.type(color);
        program.answer(title, "Return");
    };
    pick("ctrl+b", canvasTitle, "#00ff00");
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    waitUntil("a green canvas and toolbox", [&] {
        return program.pixel(600, 400) == Qt::green &&
               program.pixel(toolbox.left() + 4, toolbox.bottom() - 4) == Qt::green;
    });
    pick("ctrl+f", "Color of wires", "#0000ff");
    program.keys("Right", 3);
    waitUntil("blue wire", [&] { return program.pixel(114, 100) == Qt::blue; });
}

TEST(Program, ToolboxFollowsTheMouseAndKeepsItToItself)
{
    Program program;
    const auto corner = [&] { return program.onCanvas(program.placeOf("panel", "ToolBox")).topLeft(); };
    const auto moveWithToolbox = [&](int x, int y) {
        program.moveMouse(x, y);
        waitUntil("the toolbox", [&] { return corner() == QPoint(x, y); });
    };
    const QPoint start = corner();
    program.keys("ctrl+l Right");
    program.waitForText("1650, 1500");
    program.drag(start.x() + 50, start.y() + 130, start.x() + 130, start.y() + 10);
    program.keys("Right");
    program.waitForText("1700, 1500"); // the drag over it moved no pen
    program.moveMouse(300, 250);       // it does not follow yet
    program.waitForText("Press F1 for Help");

    program.clickOn("label", "Click once and drag");
    moveWithToolbox(300, 300);
    program.keys("Right");
    program.waitForText("1750, 1500"); // the click was for the label alone
    moveWithToolbox(200, 200);
    program.moveMouse(202, 202); // which is over it now, and stops it
    program.moveMouse(100, 500);
    program.waitForText("Press F1 for Help");
    EXPECT_EQ(corner(), QPoint(200, 200));
    program.clickOn("push button", "Close the ToolBox");
    waitUntil("no toolbox", [&] { return !program.shows("panel", "ToolBox"); });
    program.keys("ctrl+t");
    waitUntil("the toolbox in its place", [&] { return corner() == QPoint(200, 200); });
}

} // namespace schemlet
