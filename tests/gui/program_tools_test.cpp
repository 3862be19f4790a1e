#include "tests/gui/steps.h"

#include <gtest/gtest.h>

// The toolbar and the toolbox.

TEST(Program, ToolbarAndToolboxHintAndWork)
{
    Program program;
    const auto hover = [&](int x, int y, const char* hint) {
        program.moveMouse(x, y);
        program.xdotool({"mousemove_relative", "1", "0"});
        waitForWords(hint);
    };
    const auto click = [&] { program.xdotool({"click", "1"}); };

    struct Tool {
        const char* hint = nullptr;
        Outcome outcome;
    };
    const Tool toolbox[] = {
        {"Click to draw AND Gate", {"This draws an AND GATE"}},
        {"Click to draw OR Gate", {"This draws an OR GATE"}},
        {"Click to draw NOT Gate", {"This draws a NOT GATE"}},
        {"Click to draw NOR Gate", {"This draws a NOR GATE"}},
        {"Click to draw NAND Gate", {"This draws a NAND GATE"}},
        {"Click to draw RESISTANCE", {"RESISTANCE"}},
        {"Click to draw INDUCTANCE", {"INDUCTANCE"}},
        {"Click to draw CAPACITANCE", {"CAPACITANCE"}},
        {"Click to draw SUPPLY", {nullptr, "Type of Supply is"}},
        {"Click to draw BATTERY", {nullptr, "Type of Battery is"}},
        {"Click to get ERASER", {nullptr, "Erase mode"}},
        {"Click to Close the ToolBox", {}},
    };
    int place = 0;
    for (const auto& [hint, outcome] : toolbox) {
        SCOPED_TRACE(hint);
        const QPoint label = program.onCanvas(findWords("Click once and drag").center());
        hover(label.x() + (place % 2 == 0 ? -40 : 40), label.y() + 35 + 51 * (place / 2), hint);
        click();
        expect(program, outcome);
        ++place;
    }
    waitUntil("no toolbox", [] { return !seeWords("Click once and drag"); });

    const Tool toolbar[] = {
        {"Click to start a new drawing", {"Schemlet 2.0", saveQuestion}},
        {"Click to open a picture as the drawing's background", {"Schemlet 2.0", saveQuestion}},
        {"Click to save the drawing as a picture", {"Save"}},
        {"Click to print the drawing", {"Schemlet 2.0", printQuestion}},
        {},
        {"Click to see how to use the program", {"Help"}},
        {"Click to see the totals and what follows from them", {"Output"}},
        {"Click to show or hide the toolbox", {}},
        {},
        {"Click to draw lines with the mouse", {nullptr, "Line"}},
        {"Click to draw free-hand with the mouse", {nullptr, "Pencil"}},
        {"Click to choose the colour of wires", {"Select Color"}},
        {"Click to choose the colour of the canvas, which wipes it", {"Select Color"}},
        {"Click to switch erase mode on or off", {nullptr, "Normal mode"}},
        {"Click to draw rectangles with the mouse", {nullptr, "Rectangle"}},
    };
    int x = 20;
    for (const auto& [hint, outcome] : toolbar) {
        if (hint == nullptr) {
            x += 7; // a separator
            continue;
        }
        SCOPED_TRACE(hint);
        program.keys({"Right"}); // New and Open do something only then
        hover(x, -20, hint);
        click();
        expect(program, outcome);
        x += 33;
    }
    waitForWords("Click once and drag"); // shown again
}

TEST(Program, ToolboxFollowsTheMouseAndKeepsItToItself)
{
    Program program;
    const auto label = [&] {
        waitForWords("Click once and drag");
        return program.onCanvas(findWords("Click once and drag").center());
    };
    const auto clickAt = [&](QPoint place) { program.click(1, place.x(), place.y()); };
    const QPoint start = label();
    const auto followsTo = [&](int x, int y) {
        const QPoint before = label();
        program.moveMouse(x, y);
        waitUntil("the toolbox", [&] { return label() != before; });
        return label() - QPoint(x, y);
    };

    // A drag over it draws nothing and moves no pen.
    program.keys({"ctrl+l", "Right"});
    waitForWords("1650, 1500");
    const QRect rest(0, 130, program.canvas().width(), program.canvas().height() - 130);
    const QImage before = program.canvas().copy(rest);
    program.drag(start.x() - 30, start.y() + 130, start.x() + 45, start.y());
    program.keys({"Right"});
    waitForWords("1700, 1500");
    program.moveMouse(300, 250); // it does not follow yet
    waitForWords("Press F1 for Help");
    EXPECT_TRUE(program.canvas().copy(rest) == before);

    clickAt(label());
    const QPoint corner = followsTo(300, 300);
    EXPECT_EQ(followsTo(200, 200), corner); // its corner is at the mouse
    program.moveMouse(202, 202);            // which is over it now, and stops it
    program.moveMouse(100, 500);
    waitForWords("Press F1 for Help");
    EXPECT_EQ(label(), corner + QPoint(200, 200));

    const QImage marked = lookOf(program, "View", "ToolBox");
    const QPoint closing = label() + QPoint(40, 35 + 5 * 51);
    clickAt(closing);
    waitUntil("no toolbox", [] { return !seeWords("Click once and drag"); });
    const QImage unmarked = lookOf(program, "View", "ToolBox");
    EXPECT_TRUE(unmarked != marked);
    program.keys({"ctrl+t"});
    EXPECT_EQ(label(), corner + QPoint(200, 200));
    EXPECT_TRUE(lookOf(program, "View", "ToolBox") == marked);
}
