#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// The toolbar and the toolbox.

TEST(Program, ToolbarAndToolboxHintAndWork)
{
    struct Tool {
        const char* name = nullptr;
        const char* hint = nullptr;
        Outcome outcome;
        const char* role = "push button";
    };
    const Tool tools[] = {
        {"AND Gate", "Click to draw AND Gate", {"This draws an AND GATE"}},
        {"Supply", "Click to draw SUPPLY", {nullptr, "Type of Supply is"}},
        {"Eraser", "Click to get ERASER", {nullptr, "Erase mode"}},
        {"Close the ToolBox", "Click to Close the ToolBox", {}},
        {"New", "Click to start a new drawing", {"Schemlet 2.0", saveQuestion}},
        {"Output", "Click to see the totals and what follows from them", {"Output"}},
        {"Eraser", "Click to switch erase mode on or off", {nullptr, "Normal mode"}, "check box"},
        {"ToolBox", "Click to show or hide the toolbox", {nullptr, "Click once and drag"}},
        {"Box", "Click to draw rectangles with the mouse", {nullptr, "Rectangle"}, "check box"},
    };
    Program program;
    for (const char* const symbol : {"OR Gate", "NOT Gate", "NOR Gate", "NAND Gate", "Resistance", "Inductance",
                                     "Capacitance", "Supply", "Battery"}) {
        program.hoverOver("push button", symbol);
        program.waitForText(QString("Click to draw ") + symbol);
    }
    program.keys({"Right"}); // New does something only then
    for (const auto& [name, hint, outcome, role] : tools) {
        SCOPED_TRACE(hint);
        program.hoverOver(role, name);
        program.waitForText(hint);
        program.xdotool({"click", "1"});
        program.expect(outcome);
    }
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
    waitUntil("the canvas as it was", [&] { return program.canvas().copy(rest) == before; });

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

} // namespace schemlet
