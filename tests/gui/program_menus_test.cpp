#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// Menus, short-cuts, toolbar, toolbox and colours.

namespace {

/// What a command brings: a window, which is closed again, or a text on a label, or both.
struct Outcome {
    const char* window = nullptr;
    const char* text = nullptr;
};

constexpr Outcome motor{"This draws a DC MOTOR", "Do you want to Continue ?"};
constexpr Outcome diac{"This draws a DIAC THYRISTOR"};
constexpr Outcome printing{"Schemlet 2.0", printQuestion};
constexpr Outcome saving{"Schemlet 2.0", saveQuestion};
constexpr auto canvasTitle = "Canvas color: wipes the drawing, Cancel too";

void expect(Program& program, const Outcome& outcome)
{
    if (outcome.window != nullptr) {
        program.waitForWindow(outcome.window);
    }
    if (outcome.text != nullptr) {
        program.waitForText(outcome.text);
    }
    if (outcome.window != nullptr) {
        program.answer(outcome.window, "Escape");
    }
}

} // namespace

TEST(Program, EveryMenuOpensByKeyboardAndByMouseAndShortCutsWork)
{
    const std::pair<const char*, Outcome> keys[] = {
        {"alt+f p", printing},
        {"F10 p", printing},
        {"alt+f Right Return", {nullptr, "Erase mode"}},
        {"ctrl+e", {nullptr, "Normal mode"}},
        {"alt+f Right Right Up Return", {"Output"}},
        {"alt+f Right Right Right m Down Return", motor},
        {"alt+l h d", diac},
        {"alt+f Left Left Left Left Left Down Return", {"Color of inductances"}},
        {"alt+f Left Left Left Left Down Return", {canvasTitle}},
        {"alt+f Left o", {"Help"}},
        {"F1", {"Help"}},
        {"ctrl+x", saving},
        {"ctrl+q", saving},
        {"ctrl+c", {nullptr, "Pencil"}},
        {"ctrl+o", {nullptr, "1600, 1500"}}, // nothing yet
        {"Right", {nullptr, "1650, 1500"}},
        {"ctrl+o", saving},
        {"Menu h", {"Help"}},
        {"shift+F10 f", {"Color of wires"}},
    };
    const std::pair<QStringList, Outcome> menus[] = {
        {{"File", "Print"}, printing},
        {{"Edit", "Eraser"}, {nullptr, "Erase mode"}},
        {{"View", "Output"}, {"Output"}},
        {{"Electrical Components", "Motors", "D.C Motor"}, motor},
        {{"Electronic Components", "Thyristors", "DIAC"}, diac},
        {{"Components Color", "Op-Amplifier"}, {"Color of op-amplifiers"}},
        {{"Form Color", "Forecolor"}, {"Color of wires"}},
        {{"Help", "About"}, {"About Schemlet v2.0"}},
    };
    Program program;
    for (const auto& [names, outcome] : keys) {
        SCOPED_TRACE(names);
        program.keys(names);
        expect(program, outcome);
    }
    for (const auto& [captions, outcome] : menus) {
        SCOPED_TRACE(captions.join(' ').toStdString());
        program.clickMenus(captions);
        expect(program, outcome);
    }
    EXPECT_FALSE(program.shows("menu item", "Rightclick")); // it opens at the mouse or the pen instead
    program.click(3, 300, 300);
    program.clickMenus({"Line"});
    program.waitForText("Line");
    program.click(1, 300, 300);
    program.keys("Menu");
    EXPECT_TRUE(QRect(300, 300, 10, 10).contains(program.onCanvas(program.placeOf("menu item", "Eraser")).topLeft()));
}

TEST(Program, SettingsShowAndHideToolboxAndBarsAndTurnQuestionsOff)
{
    Program program;
    for (const bool shown : {false, true}) {
        program.keys("ctrl+t ctrl+k ctrl+h");
        waitUntil("toolbox and bars", [&] {
            return program.shows("panel", "ToolBox") == shown && program.shows("status bar", "Status bar") == shown &&
                   program.shows("tool bar", "ToolBar") == shown;
        });
    }
    const auto waitForMark = [&](bool checked) {
        program.clickMenus({"Ask Confirmation"});
        waitUntil("the mark", [&] {
            const auto item = program.find("menu item", "Gates");
            return item && item->is(Accessible::checked) == checked;
        });
    };
    waitForMark(true);
    program.clickMenus({"Gates"});
    program.clickOn("push button", "AND Gate");
    waitUntil("a gate without a question", [&] { return program.inked(126, 108) || program.inked(120, 115); });
    waitForMark(false);
    program.clickMenus({"Gates"});
    program.clickOn("push button", "AND Gate");
    expect(program, {"This draws an AND GATE"});
    waitForMark(true);
}

TEST(Program, ColoursArePickedInADialogAndCancelStoresTheLastOne)
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
    program.clickMenus({"Components Color", "Gates"});
    program.answer("Color of gates", "Escape");
    program.clickOn("push button", "AND Gate");
    program.answer("This draws an AND GATE", "Return");
    waitUntil("a blue gate", [&] { return program.pixel(116, 110) == Qt::blue; });
}

TEST(Program, ToolbarAndToolboxHintAndWork)
{
    struct Tool {
        const char* role = nullptr;
        const char* name = nullptr;
        const char* hint = nullptr;
        Outcome outcome;
    };
    const Tool tools[] = {
        {"push button", "NAND Gate", "Click to draw NAND Gate", {"This draws a NAND GATE"}},
        {"push button", "Supply", "Click to draw SUPPLY", {nullptr, "Type of Supply is"}},
        {"push button", "Eraser", "Click to get ERASER", {nullptr, "Erase mode"}},
        {"push button", "Close the ToolBox", "Click to Close the ToolBox", {}},
        {"push button", "Output", "Click to see the totals and what follows from them", {"Output"}},
        {"check box", "Eraser", "Click to switch erase mode on or off", {nullptr, "Normal mode"}},
        {"push button", "ToolBox", "Click to show or hide the toolbox", {nullptr, "Click once and drag"}},
        {"check box", "Box", "Click to draw rectangles with the mouse", {nullptr, "Rectangle"}},
    };
    Program program;
    for (const auto& [role, name, hint, outcome] : tools) {
        SCOPED_TRACE(hint);
        program.hoverOver(role, name);
        program.waitForText(hint);
        program.xdotool("click 1");
        expect(program, outcome);
    }
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
    const QRect rest(0, 130, program.canvas().width(), program.canvas().height() - 130);
    const QImage before = program.canvas().copy(rest);
    program.drag(start.x() + 50, start.y() + 130, start.x() + 130, start.y() + 10);
    program.keys("Right");
    program.waitForText("1700, 1500"); // the drag over it moved no pen
    program.moveMouse(300, 250);       // it does not follow yet
    program.waitForText("Press F1 for Help");
    waitUntil("the canvas as it was", [&] { return program.canvas().copy(rest) == before; });

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
