#include "tests/gui/print_server.h"
#include "tests/gui/steps.h"

#include <gtest/gtest.h>
#include <vector>

// Menus and short-cuts, settings, colours and printing.

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
        {"ctrl+x", {"Schemlet 2.0", saveQuestion}},
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

TEST(Program, PrintsTheCanvasWithoutMarkerAndEraserOutline)
{
    PrintServer server;
    Program program;
    const auto print = [&] {
        program.keys({"ctrl+p"});
        program.waitForWindow("Schemlet 2.0");
        waitForWords(printQuestion);
        program.keys({"y"});
    };
    program.keyTimes(9, "Right");
    program.keys({"e"});
    program.moveMouse(300, 300);
    for (const QRect& guide : {QRect(280, 280, 60, 60), QRect(134, 80, 12, 16)}) { // the outline and the marker
        const QImage blank = program.canvas().copy(QRect(QPoint(500, 300), guide.size()));
        waitUntil("what guides the hand", [&] { return program.canvas().copy(guide) != blank; });
    }
    print();
    waitUntil("a printed page", [&] { return server.printedFiles().size() == 1; });
    const QImage page = printedPicture(server.printedFiles().first());
    ASSERT_EQ(page.size(), program.canvas().size());
    const QImage seen = program.canvas().convertToFormat(page.format());
    const QRect around(0, 80, 400, 300);
    QImage expected(around.size(), page.format());
    expected.fill(Qt::white);
    for (int x = 0; x < around.width(); ++x) {
        for (int y = 99; y <= 101; ++y) { // the wire
            expected.setPixel(x, y - around.top(), seen.pixel(x, y));
        }
    }
    EXPECT_TRUE(page.copy(around) == expected);
    const QRect label(300, 0, 400, 40); // lies on the canvas and is no guide
    EXPECT_TRUE(page.copy(label) == seen.copy(label));

    server.removeQueue();
    print();
    program.waitForWindow("Schemlet 2.0");
    waitForWords("Printer error");
    program.keys({"Return"});
    program.waitForMainWindow();
}
