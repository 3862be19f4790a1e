#include "tests/gui/pixels.h"
#include "tests/gui/print_server.h"
#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// Menus and short-cuts, settings, colours and printing.

namespace {

constexpr auto canvasTitle = "Canvas color: wipes the drawing, Cancel too";

/// In the dialog that has been asked for; no colour cancels it.
void pick(Program& program, const char* title, const QString& color)
{
    program.waitForWindow(title);
    if (!color.isEmpty()) {
        program.keys({"alt+h", "ctrl+a"});
        program.type(color);
    }
    program.answer(title, color.isEmpty() ? "Escape" : "Return");
}

QColor ground(const Program& program, const char* panel)
{
    const QRect place = program.onCanvas(program.placeOf("panel", panel));
    return program.pixel(place.left() + 4, place.bottom() - 4);
}

} // namespace

TEST(Program, EveryMenuOpensByKeyboardAndByMouse)
{
    struct Way {
        int menu = 0;
        const char* keys = nullptr;
        QStringList captions;
        Outcome outcome;
        Outcome outcomeByMouse;
    };
    const Outcome motor{"This draws a DC MOTOR", "Do you want to Continue ?"};
    const Outcome diac{"This draws a DIAC THYRISTOR"};
    const Way ways[] = {
        {0, "p", {"File", "Print"}, {"Schemlet 2.0", printQuestion}, {"Schemlet 2.0", printQuestion}},
        {1, "Return", {"Edit", "Eraser"}, {nullptr, "Erase mode"}, {nullptr, "Normal mode"}},
        {2, "Up Return", {"View", "Output"}, {"Output"}, {"Output"}},
        {3, "m Down Return", {"Electrical Components", "Motors", "D.C Motor"}, motor, motor},
        {4, "h d", {"Electronic Components", "Thyristors", "DIAC"}, diac, diac},
        {-5, "Down Return", {"Components Color", "Op-Amplifier"}, {"Color of inductances"}, {"Color of op-amplifiers"}},
        {-4, "Down Return", {"Form Color", "Forecolor"}, {canvasTitle}, {"Color of wires"}},
        {-1, "o", {"Help", "About"}, {"Help"}, {"About Schemlet v2.0"}},
    };
    Program program;
    for (const Way& way : ways) {
        SCOPED_TRACE(way.keys);
        program.openMenu(way.menu);
        program.xdotool(QStringList{"key"} + QString(way.keys).split(' '));
        program.expect(way.outcome);
        program.clickMenus(way.captions);
        program.expect(way.outcomeByMouse);
    }
    EXPECT_FALSE(program.shows("menu item", "Rightclick")); // not on the bar, but
    program.openPopup(300, 300);
    program.clickMenus({"Line"});
    program.waitForText("Line");
    program.click(1, 300, 300);
    for (const char* const key : {"Menu", "shift+F10"}) {
        program.keys({key});
        const QRect item = program.onCanvas(program.placeOf("menu item", "Eraser"));
        EXPECT_TRUE(QRect(300, 300, 10, 10).contains(item.topLeft())); // at the pen
        program.keys({"h"});
        program.expect({"Help"});
    }
    program.keys({"F10", "p"});
    program.expect({"Schemlet 2.0", printQuestion});
}

TEST(Program, ShortCutsHaveTheirEffect)
{
    const std::pair<const char*, Outcome> rows[] = {
        {"F1", {"Help"}},
        {"ctrl+a", {"About Schemlet v2.0"}},
        {"ctrl+u", {"Output"}},
        {"ctrl+f", {"Color of wires"}},
        {"ctrl+b", {canvasTitle}},
        {"ctrl+p", {"Schemlet 2.0", printQuestion}},
        {"ctrl+x", {"Schemlet 2.0", saveQuestion}},
        {"ctrl+q", {"Schemlet 2.0", saveQuestion}},
        {"ctrl+e", {nullptr, "Erase mode"}},
        {"ctrl+e", {nullptr, "Normal mode"}},
        {"ctrl+c", {nullptr, "Pencil"}},
        {"ctrl+r", {nullptr, "Rectangle"}},
        {"ctrl+l", {nullptr, "Line"}},
        {"ctrl+o", {nullptr, "1600, 1500"}}, // nothing yet
        {"Right", {nullptr, "1650, 1500"}},
        {"ctrl+o", {"Schemlet 2.0", saveQuestion}},
        {"ctrl+n", {"Schemlet 2.0", saveQuestion}},
        {"Right", {nullptr, "1700, 1500"}},
        {"ctrl+j", {nullptr, "1900, 1500"}},
        {"ctrl+s", {"Save", "File name:"}},
    };
    Program program;
    for (const auto& [key, outcome] : rows) {
        SCOPED_TRACE(key);
        program.keys({key});
        program.expect(outcome);
    }
    program.keys({"ctrl+g"});
    waitUntil("the ground", [&] { return program.inked(115, 100) && program.inked(126, 110); });

    for (const bool shown : {false, true}) {
        program.keys({"ctrl+t", "ctrl+k", "ctrl+h"});
        waitUntil("toolbox and bars", [&] {
            return program.shows("panel", "ToolBox") == shown && program.shows("status bar", "Status bar") == shown &&
                   program.shows("tool bar", "ToolBar") == shown;
        });
    }
}

TEST(Program, SettingsAskWhatTheirMarksSay)
{
    Program program;
    const auto gate = [&] { program.keys({"alt+l", "g", "Return"}); };
    const auto switchOver = [&](const char* menu, const char* item, bool checked) {
        program.clickMenus({menu, item});
        program.waitForMark(menu, item, checked);
    };
    program.openMenu(-3);
    program.keys({"g", "g", "Return"}); // past the generators
    program.waitForMark("Ask Confirmation", "Gates", false);
    gate();
    waitUntil("a gate without a question", [&] { return program.inked(126, 108) || program.inked(120, 115); });
    switchOver("Ask Confirmation", "Gates", true);
    gate();
    program.expect({"This draws an AND GATE", "Do you want to Continue ?"});

    program.keys({"Right", "ctrl+n"});
    program.answer("Schemlet 2.0", "n");
    program.keys({"j"});
    program.keyTimes(6, "Right");
    program.keyTimes(6, "Down");
    program.keyTimes(3, "Left");
    program.keyTimes(5, "Up"); // through the wire at the top
    program.expect({"POINT (or) LINE AHEAD..."});
    program.waitForMark("Enable", "Automatic Jumper", false); // J leaves the mark alone
    program.openMenu(-2);
    program.keys({"Return"}); // which switches off what J has switched on
    program.waitForMark("Enable", "Automatic Jumper", true);
    program.keyTimes(2, "Right");
    program.keyTimes(5, "Down");
    waitUntil("wire through the wire", [&] { return program.inked(123, 113); });
    switchOver("Enable", "Automatic Jumper", false);
}

TEST(Program, ColoursGoWhereTheyAreChosenAndCancelStoresTheLastOne)
{
    Program program;
    const auto draw = [&](const char* menuKey, const char* question) {
        program.keys({"alt+l", menuKey, "Return"});
        program.answer(question, "Return");
    };
    const QColor grey(0xE0, 0xE0, 0xE0);
    waitUntil("a grey toolbox", [&] { return ground(program, "ToolBox") == grey; });
    program.keyTimes(3, "Right");
    program.keys({"ctrl+b"});
    pick(program, canvasTitle, {}); // black, which is for the panel only
    EXPECT_EQ(ground(program, "ToolBox"), grey);
    waitUntil("the wire", [&] { return program.inked(114, 100) && !program.inked(114, 110); });
    program.keys({"b"});
    waitUntil("a black panel", [&] { return ground(program, "Battery") == Qt::black; });
    program.keys({"Escape"});

    program.clickMenus({"Components Color", "Diodes"});
    pick(program, "Color of diodes", "#ff0000");
    program.clickMenus({"Components Color", "Gates"});
    pick(program, "Color of gates", {});
    draw("g", "This draws an AND GATE");
    waitUntil("a red gate", [&] { return program.pixel(116, 110) == Qt::red; });
    draw("d", "This draws a ZENER DIODE");
    waitUntil("a red diode", [&] { return program.pixel(137, 105) == Qt::red; });

    program.keys({"ctrl+b"});
    pick(program, canvasTitle, "#00ff00");
    waitUntil("a green canvas", [&] {
        return program.pixel(114, 100) == Qt::green && program.pixel(116, 110) == Qt::green &&
               program.pixel(600, 400) == Qt::green && ground(program, "ToolBox") == Qt::green;
    });
    program.keys({"ctrl+f"});
    pick(program, "Color of wires", "#0000ff");
    program.keyTimes(3, "Down");
    waitUntil("blue wire", [&] { return program.pixel(153, 109) == Qt::blue || program.pixel(152, 109) == Qt::blue; });
}

TEST(Program, PrintsTheCanvasWithItsLabelButWithoutMarkerAndEraserOutline)
{
    PrintServer server;
    Program program;
    const auto print = [&] {
        program.keys({"ctrl+p"});
        program.waitForText(printQuestion);
        program.keys({"y"});
    };
    program.keyTimes(9, "Right");
    program.keys({"e"});
    program.moveMouse(300, 300);
    for (const QRect& guide : {QRect(280, 280, 60, 60), QRect(134, 80, 12, 16)}) { // the outline and the marker
        waitUntil("what guides the hand", [&] { return inkedPixels(program.canvas().copy(guide)) > 0; });
    }
    print();
    waitUntil("a printed page", [&] { return server.printedFiles().size() == 1; });
    const QImage page = printedPicture(server.printedFiles().first());
    ASSERT_EQ(page.size(), program.canvas().size());
    for (const QRect& same : {QRect(0, 99, 400, 3), QRect(300, 0, 400, 40)}) {
        waitUntil("the printed wire and label",
                  [&] { return program.canvas().convertToFormat(page.format()).copy(same) == page.copy(same); });
    }
    EXPECT_EQ(inkedPart(page.copy(0, 80, 400, 300)), inkedPart(page.copy(0, 99, 400, 3)).translated(0, 19));

    server.removeQueue();
    print();
    program.waitForText("Printer error*");
    program.keys({"Return"});
    program.waitForMainWindow();
}

} // namespace schemlet
