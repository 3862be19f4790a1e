#include "tests/gui/program.h"

#include <gtest/gtest.h>
#include <span>

// The toolbar and the toolbox.

namespace {

struct Tool {
    const char* name = nullptr;
    const char* hint = nullptr;
    Outcome outcome;
};

void tryTools(Program& program, std::span<const Tool> tools)
{
    for (const auto& [name, hint, outcome] : tools) {
        SCOPED_TRACE(hint);
        program.keys({"Right"}); // New and Open do something only then
        program.hoverOver("push button", name);
        program.waitForText(hint);
        program.xdotool({"click", "1"});
        program.expect(outcome);
    }
}

} // namespace

TEST(Program, ToolbarAndToolboxHintAndWork)
{
    Program program;
    const Tool toolbox[] = {
        {"AND Gate", "Click to draw AND Gate", {"This draws an AND GATE"}},
        {"OR Gate", "Click to draw OR Gate", {"This draws an OR GATE"}},
        {"NOT Gate", "Click to draw NOT Gate", {"This draws a NOT GATE"}},
        {"NOR Gate", "Click to draw NOR Gate", {"This draws a NOR GATE"}},
        {"NAND Gate", "Click to draw NAND Gate", {"This draws a NAND GATE"}},
        {"Resistance", "Click to draw RESISTANCE", {"RESISTANCE"}},
        {"Inductance", "Click to draw INDUCTANCE", {"INDUCTANCE"}},
        {"Capacitance", "Click to draw CAPACITANCE", {"CAPACITANCE"}},
        {"Supply", "Click to draw SUPPLY", {nullptr, "Type of Supply is"}},
        {"Battery", "Click to draw BATTERY", {nullptr, "Type of Battery is"}},
        {"Eraser", "Click to get ERASER", {nullptr, "Erase mode"}},
        {"Close the ToolBox", "Click to Close the ToolBox", {}},
    };
    tryTools(program, toolbox);
    waitUntil("no toolbox", [&] { return !program.shows("panel", "ToolBox"); });
    const Tool toolbar[] = {
        {"New", "Click to start a new drawing", {"Schemlet 2.0", saveQuestion}},
        {"Open", "Click to open a picture as the drawing's background", {"Schemlet 2.0", saveQuestion}},
        {"Save", "Click to save the drawing as a picture", {"Save"}},
        {"Print", "Click to print the drawing", {"Schemlet 2.0", printQuestion}},
        {"Help", "Click to see how to use the program", {"Help"}},
        {"Output", "Click to see the totals and what follows from them", {"Output"}},
        {"Eraser", "Click to switch erase mode on or off", {nullptr, "Normal mode"}},
        {"ToolBox", "Click to show or hide the toolbox", {nullptr, "Click once and drag"}},
        {"Line", "Click to draw lines with the mouse", {nullptr, "Line"}},
        {"Pencil", "Click to draw free-hand with the mouse", {nullptr, "Pencil"}},
        {"Fore", "Click to choose the color of wires", {"Color of wires"}},
        {"Back", "Click to choose the color of the canvas, which wipes it", {"Canvas color: wipes the drawing, Cancel too"}},
        {"Box", "Click to draw rectangles with the mouse", {nullptr, "Rectangle"}},
    };
    tryTools(program, toolbar);
}

TEST(Program, ToolboxFollowsTheMouseAndKeepsItToItself)
{
    Program program;
    const auto corner = [&] { return program.onCanvas(program.placeOf("panel", "ToolBox")).topLeft(); };
    const auto waitForCorner = [&](QPoint place) { waitUntil("the toolbox", [&] { return corner() == place; }); };

    // A drag over it draws nothing and moves no pen.
    const QPoint start = corner();
    program.keys({"ctrl+l", "Right"});
    program.waitForText("1650, 1500");
    const QRect rest(0, 130, program.canvas().width(), program.canvas().height() - 130);
    const QImage before = program.canvas().copy(rest);
    program.drag(start.x() + 50, start.y() + 130, start.x() + 130, start.y() + 10);
    program.keys({"Right"});
    program.waitForText("1700, 1500");
    program.moveMouse(300, 250); // it does not follow yet
    program.waitForText("Press F1 for Help");
    EXPECT_TRUE(program.canvas().copy(rest) == before);

    program.clickOn("label", "Click once and drag");
    program.moveMouse(300, 300);
    waitForCorner({300, 300});
    program.keys({"Right"});
    program.waitForText("1750, 1500"); // the click was for the label alone
    program.moveMouse(200, 200);
    waitForCorner({200, 200});
    program.moveMouse(202, 202); // which is over it now, and stops it
    program.moveMouse(100, 500);
    program.waitForText("Press F1 for Help");
    EXPECT_EQ(corner(), QPoint(200, 200));

    program.waitForMark("View", "ToolBox", true);
    program.clickOn("push button", "Close the ToolBox");
    waitUntil("no toolbox", [&] { return !program.shows("panel", "ToolBox"); });
    program.waitForMark("View", "ToolBox", false);
    program.keys({"ctrl+t"});
    waitForCorner({200, 200});
    program.waitForMark("View", "ToolBox", true);
}
