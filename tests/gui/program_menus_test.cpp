#include "tests/gui/desk.h"
#include "tests/gui/words.h"

#include <gtest/gtest.h>
#include <string_view>
#include <vector>

// Every way to a command: menus, short-cuts, toolbar and toolbox, by keyboard and by mouse.

namespace {

constexpr auto question = "Do you want to save changes?";
constexpr auto printQuestion = "Do you want to print this form?";

void clickWords(Program& program, const QString& words)
{
    waitForWords(words);
    const QPoint place = findWords(words).center();
    program.xdotool({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
}

/// What a command brings: a window, which is closed again, or words on the screen, or both.
struct Outcome {
    const char* window = nullptr;
    const char* words = nullptr;
};

void expect(Program& program, const Outcome& outcome)
{
    if (outcome.window != nullptr) {
        program.waitForWindow(outcome.window);
    }
    if (outcome.words != nullptr) {
        waitForWords(outcome.words);
    }
    if (outcome.window == nullptr) {
        return;
    }
    program.keys({"Escape"});
    if (std::string_view(outcome.window) == "Save") {
        return expect(program, {"Schemlet 2.0", "Unkown error while saving file"});
    }
    program.waitForMainWindow();
}

/// Opens the menu bar's menu that is so many to the right of the first one, or to the left of it, round the end. (To
/// the right there is no way past a menu that begins with a submenu.)
void openMenu(Program& program, int place)
{
    program.keys({"alt+f"});
    for (; place != 0; place += place > 0 ? -1 : 1) {
        program.keys({place > 0 ? "Right" : "Left"});
    }
}

/// A check item and its mark, as the menu shows them; the item must not be the one that the menu opens with.
QImage lookOf(Program& program, const char* menu, const char* item)
{
    clickWords(program, menu);
    waitForWords(item);
    const QRect place = findWords(item).adjusted(-30, -4, 4, 4);
    const QImage look = screen(place);
    program.keys({"Escape", "Escape"}); // the menu, and the menu bar
    waitUntil("no menu", [&] { return !seeWords(item); });
    return look;
}

} // namespace

TEST(Program, EveryMenuOpensByKeyboardAndByMouse)
{
    struct Way {
        int menu;
        const char* keys;
        std::vector<const char*> captions;
        Outcome outcome;
        Outcome outcomeByMouse;
    };
    const Outcome motor{"This draws a DC MOTOR", "Do you want to Continue ?"};
    const Outcome diac{"This draws a DIAC THYRISTOR"};
    const Outcome colors{"Select Color"};
    const Way ways[] = {
        {0, "p", {"File", "Print"}, {"Schemlet 2.0", printQuestion}, {"Schemlet 2.0", printQuestion}},
        {1, "Return", {"Edit", "Eraser"}, {nullptr, "Erase mode"}, {nullptr, "Normal mode"}},
        {2, "Up Return", {"View", "Output"}, {"Output"}, {"Output"}},
        {3, "m Down Return", {"Electrical Components", "Motors", "D.C Motor"}, motor, motor},
        {4, "h d", {"Electronic Components", "Thyristors", "DIAC"}, diac, diac},
        {-5, "Down Return", {"Components Color", "Capacitance"}, colors, colors},
        {-4, "Down Return", {"Form Color", "Forecolor"}, colors, colors},
        {-1, "o", {"Help", "About"}, {"Help"}, {"About Schemlet v2.0"}},
    };
    Program program;
    for (const Way& way : ways) {
        SCOPED_TRACE(way.captions.front());
        openMenu(program, way.menu);
        program.xdotool(QStringList{"key"} + QString(way.keys).split(' '));
        expect(program, way.outcome);
        for (const char* const caption : way.captions) {
            clickWords(program, caption);
        }
        expect(program, way.outcomeByMouse);
    }
    program.openPopup(300, 300);
    clickWords(program, "Line");
    waitUntil("the tool", [&] { return seeWords("Line"); });
    program.openPopup(300, 300);
    program.keys({"h"});
    expect(program, {"Help"});
}

TEST(Program, ShortCutsHaveTheirEffect)
{
    const std::pair<const char*, Outcome> rows[] = {
        {"F1", {"Help"}},
        {"ctrl+a", {"About Schemlet v2.0"}},
        {"ctrl+u", {"Output"}},
        {"ctrl+f", {"Select Color"}},
        {"ctrl+b", {"Select Color"}},
        {"ctrl+p", {"Schemlet 2.0", printQuestion}},
        {"ctrl+x", {"Schemlet 2.0", question}},
        {"ctrl+e", {nullptr, "Erase mode"}},
        {"ctrl+e", {nullptr, "Normal mode"}},
        {"ctrl+c", {nullptr, "Pencil"}},
        {"ctrl+r", {nullptr, "Rectangle"}},
        {"ctrl+l", {nullptr, "Line"}},
        {"ctrl+o", {nullptr, "1600, 1500"}}, // nothing yet
        {"Right", {nullptr, "1650, 1500"}},
        {"ctrl+o", {"Schemlet 2.0", question}},
        {"ctrl+n", {"Schemlet 2.0", question}},
        {"Right", {nullptr, "1700, 1500"}},
        {"ctrl+j", {nullptr, "1900, 1500"}},
        {"ctrl+q", {nullptr, "1900, 1500"}},
        {"ctrl+s", {"Save", "File name:"}},
    };
    Program program;
    for (const auto& [key, outcome] : rows) {
        SCOPED_TRACE(key);
        program.keys({key});
        expect(program, outcome);
    }
    program.keys({"ctrl+g"});
    waitUntil("the ground", [&] { return program.inked(115, 100) && program.inked(126, 110); });

    program.keys({"ctrl+t", "ctrl+k", "ctrl+h"});
    waitUntil("no toolbox and no bars",
              [&] { return !seeWords("Click once and drag") && !seeWords("Normal mode") && !program.inked(900, -10); });
    program.keys({"ctrl+t", "ctrl+k", "ctrl+h"});
    waitUntil("toolbox and bars",
              [&] { return seeWords("Click once and drag") && seeWords("Normal mode") && program.inked(900, -10); });
}

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
        const char* hint;
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
        {"Click to start a new drawing", {"Schemlet 2.0", question}},
        {"Click to open a picture as the drawing's background", {"Schemlet 2.0", question}},
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

    const QPoint closing = label() + QPoint(40, 35 + 5 * 51);
    clickAt(closing);
    waitUntil("no toolbox", [] { return !seeWords("Click once and drag"); });
    program.keys({"ctrl+t"});
    EXPECT_EQ(label(), corner + QPoint(200, 200));
}

TEST(Program, SettingsAskWhatTheirMarksSay)
{
    Program program;
    const auto gate = [&] { program.keys({"alt+l", "g", "Return"}); };
    const QImage asking = lookOf(program, " Ask Confirmation", "Gates");
    openMenu(program, -3);
    program.keys({"g", "g", "Return"}); // past the generators
    EXPECT_TRUE(lookOf(program, "Ask Confirmation", "Gates") != asking);
    gate();
    waitUntil("a gate without a question", [&] { return program.inked(126, 108) || program.inked(120, 115); });
    clickWords(program, "Ask Confirmation");
    clickWords(program, "Gates");
    EXPECT_TRUE(lookOf(program, "Ask Confirmation", "Gates") == asking);
    gate();
    expect(program, {"This draws an AND GATE", "Do you want to Continue ?"});

    const QImage off = lookOf(program, "Enable", "Automatic Jumper");
    program.keys({"Right", "ctrl+n"});
    program.waitForWindow("Schemlet 2.0");
    program.keys({"n"});
    program.waitForMainWindow();
    program.keys({"j"});
    program.keyTimes(6, "Right");
    program.keyTimes(6, "Down");
    program.keyTimes(3, "Left");
    program.keyTimes(5, "Up"); // through the wire at the top
    expect(program, {"POINT (or) LINE AHEAD..."});
    EXPECT_TRUE(lookOf(program, "Enable", "Automatic Jumper") == off); // J leaves the mark alone
    openMenu(program, -2);
    program.keys({"Return"}); // which switches off what J has switched on
    EXPECT_TRUE(lookOf(program, "Enable", "Automatic Jumper") != off);
    program.keyTimes(2, "Right");
    program.keyTimes(5, "Down");
    waitUntil("wire through the wire", [&] { return program.inked(123, 113); });
    clickWords(program, "Enable");
    clickWords(program, "Automatic Jumper");
    EXPECT_TRUE(lookOf(program, "Enable", "Automatic Jumper") == off);
}

TEST(Program, ColoursGoWhereTheyAreChosenAndCancelStoresTheLastOne)
{
    Program program;
    const auto pick = [&](const char* color) {
        program.waitForWindow("Select Color");
        if (color != nullptr) {
            program.keys({"alt+h", "ctrl+a"});
            program.type(color);
        }
        program.keys({color != nullptr ? "Return" : "Escape"});
        program.waitForMainWindow();
    };
    const QPoint label = program.onCanvas(findWords("Click once and drag").center());
    const auto toolboxColor = [&] { return program.pixel(label.x() - 70, label.y()); };
    const QColor grey(0xE0, 0xE0, 0xE0);
    EXPECT_EQ(toolboxColor(), grey);
    program.keyTimes(3, "Right");
    program.keys({"ctrl+b"});
    pick(nullptr); // black, which is for the panel only
    EXPECT_EQ(toolboxColor(), grey);
    waitUntil("the wire", [&] { return program.inked(114, 100) && !program.inked(114, 110); });
    program.keys({"b"});
    waitUntil("a black panel", [&] {
        const QRect panel = program.panel();
        return panel.isValid() &&
               program.pixel(panel.left() + panel.width() / 2, panel.top() + panel.height() / 2) == Qt::black;
    });
    program.keys({"Escape"});

    clickWords(program, "Components Color");
    clickWords(program, "Diodes");
    pick("#ff0000");
    clickWords(program, "Components Color");
    clickWords(program, "Gates");
    pick(nullptr);
    program.keys({"alt+l", "g", "Return"});
    program.waitForWindow("This draws an AND GATE");
    program.keys({"Return"});
    program.waitForMainWindow();
    waitUntil("a red gate", [&] { return program.pixel(116, 110) == Qt::red; });
    program.keys({"alt+l", "d", "Return"});
    program.waitForWindow("This draws a ZENER DIODE");
    program.keys({"Return"});
    program.waitForMainWindow();
    waitUntil("a red diode", [&] { return program.pixel(137, 105) == Qt::red; });

    program.keys({"ctrl+b"});
    pick("#00ff00");
    waitUntil("a green canvas", [&] {
        return program.pixel(114, 100) == Qt::green && program.pixel(116, 110) == Qt::green &&
               program.pixel(600, 400) == Qt::green;
    });
    EXPECT_EQ(toolboxColor(), QColor(Qt::green));
    program.keys({"ctrl+f"});
    pick("#0000ff");
    program.keyTimes(3, "Down");
    waitUntil("blue wire", [&] { return program.pixel(153, 109) == Qt::blue || program.pixel(152, 109) == Qt::blue; });
}
