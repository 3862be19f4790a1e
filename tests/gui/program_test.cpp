#include "tests/gui/desk.h"
#include "tests/gui/print_server.h"

#include <QGuiApplication>
#include <gtest/gtest.h>
#include <string_view>

// Places are canvas pixels: the pen starts at (106, 100), a step is 3 1/3 pixels long.

TEST(Program, StartsWithAnEmptyCanvasAndEndsCleanly)
{
    Program program;
    const QImage canvas = program.canvas();
    EXPECT_GT(canvas.width(), 900);
    EXPECT_GT(canvas.height(), 600);
    EXPECT_EQ(program.close(), 0);
}

TEST(Program, MarkerBlinksAboveThePen)
{
    const Program program;
    const auto shown = [&] {
        const QImage marker = program.canvas().copy(106, 80, 8, 16);
        QImage blank = marker.copy();
        blank.fill(Qt::white);
        return marker != blank;
    };
    waitUntil("the marker", shown);
    waitUntil("no marker", [&] { return !shown(); });
    waitUntil("the marker again", shown);
}

TEST(Program, ArrowKeysLaySolidWireWithShiftAndOnTheNumberPadToo)
{
    Program program;
    program.keyTimes(10, "Right");
    program.keyTimes(5, "shift+Right");
    program.keyTimes(5, "KP_Right");
    waitUntil("the end of the wire", [&] { return program.inked(171, 100); });
    const QImage canvas = program.canvas();
    for (int x = 106; x <= 171; ++x) {
        for (int y = 99; y <= 101; ++y) {
            ASSERT_EQ(canvas.pixelColor(x, y), QColor(Qt::black)) << x << ' ' << y;
        }
        ASSERT_EQ(canvas.pixelColor(x, 102), QColor(Qt::white));
    }
    EXPECT_EQ(canvas.pixelColor(174, 100), QColor(Qt::white));
}

/// Lays three sides of a rectangle and comes up towards the first one: the pen stops at (116, 106), 100 twips below it.
void walkUpToTheWire(Program& program)
{
    program.keys({"j"});
    program.keyTimes(6, "Right");
    program.keyTimes(6, "Down");
    program.keyTimes(3, "Left");
    program.keyTimes(4, "Up");
    waitUntil("the wire below the crossing", [&] { return program.inked(116, 108) && !program.inked(116, 103); });
    program.keys({"Up"});
    program.waitForWindow("POINT (or) LINE AHEAD...");
}

TEST(Program, JumperQuestionAnsweredYesHopsOverTheWire)
{
    Program program;
    walkUpToTheWire(program);
    program.keys({"y"});
    program.waitForMainWindow();
    waitUntil("wire behind the hop", [&] { return program.inked(116, 90); });
    EXPECT_TRUE(program.inked(122, 95));   // the hop's bulge
    EXPECT_FALSE(program.inked(116, 104)); // no wire through the gap
    program.keys({"Up"});                  // the keyboard is the canvas's again
    waitUntil("the next step", [&] { return program.inked(116, 87); });
}

TEST(Program, JumperQuestionAnsweredNoOrClosedDrawsTheWireThrough)
{
    for (const char* const no : {"n", "Escape", "its frame"}) {
        Program program;
        walkUpToTheWire(program);
        if (std::string_view(no) == "its frame") {
            program.closeActiveWindow();
        } else {
            program.keys({no});
        }
        program.waitForMainWindow();
        waitUntil("wire through the gap", [&] { return program.inked(116, 104); });
        EXPECT_FALSE(program.inked(122, 95));
    }
}

TEST(Program, HeldArrowKeyDoesNotWalkThroughTheQuestionItRaises)
{
    Program program;
    program.keys({"j"});
    program.keyTimes(6, "Right");
    program.keyTimes(6, "Down");
    program.keyTimes(3, "Left");
    waitUntil("the wire below the crossing", [&] { return program.inked(116, 120); });
    program.xdotool({"keydown", "Up"});
    program.waitForWindow("POINT (or) LINE AHEAD...");
    program.xdotool({"sleep", "0.4"}); // a dozen repeats, which would move the focus from Yes to No
    program.xdotool({"keyup", "Up"});
    program.keys({"Return"});
    program.waitForMainWindow();
    waitUntil("the hop", [&] { return program.inked(122, 95); });
}

TEST(Program, GateFromTheMenuAsksAndTheWireGoesOnFromItsOutput)
{
    Program program;
    program.keyTimes(6, "Right"); // the pen is at (126, 100)
    for (const char* const reply : {"Escape", "Return"}) {
        program.keys({"alt+l", "g", "Return"});
        program.waitForWindow("This draws an AND GATE");
        program.keys({reply});
        program.waitForMainWindow();
    }
    waitUntil("the gate's nose", [&] { return program.inked(146, 105); });
    EXPECT_TRUE(program.inked(126, 115));  // lower back corner
    EXPECT_FALSE(program.inked(136, 108)); // hollow
    EXPECT_FALSE(program.inked(148, 103)); // no wire yet
    program.keys({"Right", "Right"});
    waitUntil("wire from the output", [&] { return program.inked(150, 103); });
}

TEST(Program, ValueTypedOverThePresetIsPrintedBesideTheSymbolAndBadTextChangesNothing)
{
    Program program;
    program.keys({"r"});
    program.waitForWindow(" RESISTANCE ");
    program.keys({"a", "b", "c", "Return"});
    program.waitForWindow("Schemlet 2.0");
    program.keys({"Return"});
    program.waitForMainWindow();
    program.keys({"r"});
    program.waitForWindow(" RESISTANCE ");
    program.keys({"Escape"});
    program.waitForMainWindow();
    EXPECT_FALSE(program.inked(136, 113)); // where the second stroke of a resistor would end

    program.keys({"r"});
    program.waitForWindow(" RESISTANCE ");
    program.keys({"4", "7", "Return"});
    program.waitForMainWindow();
    waitUntil("the zig-zag", [&] { return program.inked(119, 113) && program.inked(169, 113); });
    const auto printedAt = [canvas = program.canvas()](int left) {
        int ink = 0;
        for (int x = left; x < left + 14; ++x) {
            for (int y = 116; y < 126; ++y) {
                ink += canvas.pixelColor(x, y) == Qt::white ? 0 : 1;
            }
        }
        return ink > 5;
    };
    EXPECT_TRUE(printedAt(137));
    EXPECT_FALSE(printedAt(153)); // "47", not "4710"
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(180, 100); });
}

TEST(Program, SourceIsChosenByMnemonicTypedAndDrawnByKeyboardAlone)
{
    Program program;
    program.keys({"s"});
    waitUntil("the panel", [&] { return program.panel().isValid(); });
    program.keys({"Right"}); // the canvas still has the keyboard
    waitUntil("wire", [&] { return program.inked(109, 100); });
    program.keys({"alt+v", "1", "2", "Return"}); // Alt+V is the View menu's too
    waitUntil("the circle",
              [&] { return program.inked(109, 100) && program.inked(123, 87) && program.inked(123, 113); });
    EXPECT_FALSE(program.panel().isValid());
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(141, 100); });

    const QImage before = program.canvas();
    program.keys({"b", "alt+n", "5", "Escape"});
    waitUntil("no panel", [&] { return !program.panel().isValid(); });
    program.keys({"Down"});
    waitUntil("wire", [&] { return program.inked(143, 103); });
    program.moveMouse(5, 5);
    EXPECT_TRUE(before.copy(0, 0, 140, 300) == program.canvas().copy(0, 0, 140, 300));
}

TEST(Program, SourceIsChosenAndDrawnByMouse)
{
    Program program;
    program.keys({"b"});
    waitUntil("the panel", [&] { return program.panel().isValid(); });
    const QRect panel = program.panel();
    const auto clickIn = [&](double x, double y) {
        program.click(1, panel.left() + static_cast<int>(panel.width() * x),
                      panel.top() + static_cast<int>(panel.height() * y));
    };
    clickIn(0.12, 0.44); // Positive
    program.keys({"9"});
    clickIn(0.72, 0.61); // Cancel
    waitUntil("no panel", [&] { return !program.panel().isValid(); });
    program.keys({"b"});
    waitUntil("the panel", [&] { return program.panel().isValid(); });
    clickIn(0.12, 0.44);
    program.keys({"9"});
    clickIn(0.57, 0.44); // Negative instead
    clickIn(0.85, 0.88); // OK
    waitUntil("the plates", [&] { return program.inked(113, 110) && program.inked(106, 94); });
    EXPECT_FALSE(program.inked(106, 112)); // the short plate comes first
    EXPECT_FALSE(program.panel().isValid());
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(119, 100); });
}

TEST(Program, OutputWindowStaysUsableBesideTheMainWindow)
{
    Program program;
    program.keys({"ctrl+u"});
    program.waitForWindow("Output");
    program.activate();
    program.keys({"Right", "Right"});
    waitUntil("wire", [&] { return program.inked(112, 100); });
    program.keys({"ctrl+u"});
    program.waitForWindow("Output");
    program.keys({"Escape"});
    program.waitForMainWindow();
    program.keys({"Right", "Right"});
    waitUntil("wire", [&] { return program.inked(118, 100); });
}

TEST(Program, OutputWindowPrintsItselfOnTheDefaultPrinter)
{
    PrintServer server;
    Program program;
    program.keys({"r"});
    program.waitForWindow(" RESISTANCE ");
    program.keys({"4", "7", "Return"});
    program.waitForMainWindow();
    program.keys({"ctrl+u"});
    program.waitForWindow("Output");
    program.keys({"alt+p"});
    waitUntil("a printed page", [&] { return server.printedFiles().size() == 1; });
    const QImage printed = printedPicture(server.printedFiles().first());
    const QImage window = program.activeWindow();
    ASSERT_EQ(printed.size(), window.size());
    int differing = 0;
    for (int y = 0; y < window.height(); ++y) {
        for (int x = 0; x < window.width(); ++x) {
            differing += printed.pixel(x, y) == window.pixel(x, y) ? 0 : 1;
        }
    }
    EXPECT_LT(differing, 100); // no more than a text cursor or a highlight

    server.removeQueue();
    program.keys({"alt+p"});
    program.waitForWindow("Schemlet 2.0");
    program.keys({"Return"});
    program.waitForWindow("Output");
}

TEST(Program, MouseToolsDraw)
{
    Program program;
    program.keys({"ctrl+l"});
    program.drag(300, 300, 400, 300);
    waitUntil("a line", [&] { return program.inked(350, 300); });

    program.keys({"ctrl+r"});
    program.drag(300, 320, 400, 360);
    waitUntil("a box", [&] { return program.inked(399, 340) && program.inked(350, 359) && program.inked(300, 340); });
    EXPECT_FALSE(program.inked(350, 340));

    program.openPopup(500, 500); // eraser, a separator, pencil
    program.keys({"Down", "Down", "Return"});
    program.drag(300, 400, 400, 440);
    waitUntil("a stroke", [&] { return program.inked(350, 419); });

    program.keys({"Right", "Right"}); // the pen went along to the last press
    waitUntil("wire from the press", [&] { return program.inked(304, 399); });
}

TEST(Program, EraserWipesOnlyInEraseMode)
{
    Program program;
    program.keys({"ctrl+r"});
    program.drag(300, 300, 400, 360);
    waitUntil("a box", [&] { return program.inked(350, 359); });

    program.keys({"e"});
    waitUntil("the label", [&] { return program.canvas().copy(300, 10, 400, 20).pixelColor(10, 10) != Qt::white; });
    program.keys({"Right", "Right", "Right"});
    program.moveMouse(300, 330);
    waitUntil("the outline", [&] { return program.inked(301, 320); });
    program.drag(290, 330, 320, 330);
    program.keys({"e"});
    program.moveMouse(600, 500);
    waitUntil("clean paper", [&] { return !program.inked(300, 330); });
    EXPECT_TRUE(program.inked(399, 330));  // the eraser was not there
    EXPECT_FALSE(program.inked(118, 100)); // arrow keys laid no wire
    waitUntil("no label", [&] { return !program.inked(500, 20); });
}

TEST(Program, MouseGoesThroughWhatLiesOnTheCanvas)
{
    Program program;
    const int middle = program.canvas().width() / 2;
    program.keys({"ctrl+r"});
    program.drag(middle - 60, 20, middle + 60, 200);
    waitUntil("a box", [&] { return program.inked(middle, 199) && program.inked(middle, 20); });
    program.keys({"e"});
    waitUntil("the label over the box", [&] { return program.pixel(middle, 20) != QColor(Qt::black); });
    program.drag(middle - 20, 20, middle + 20, 20);
    program.keys({"e"});
    program.moveMouse(middle, 400);
    waitUntil("clean paper where the label was", [&] { return !program.inked(middle, 20); });
    EXPECT_TRUE(program.inked(middle - 50, 20));
}

TEST(Program, RightButtonOpensTheMenuAndLeavesThePen)
{
    Program program;
    const QImage before = program.canvas().copy(0, 300, 1000, 300);
    program.openPopup(500, 400);
    program.keys({"Escape"});
    waitUntil("no menu", [&] { return program.canvas().copy(0, 300, 1000, 300) == before; });
    program.keyTimes(3, "Right");
    waitUntil("wire at the old pen", [&] { return program.inked(112, 100); });
}

TEST(Program, InksEveryPointOfAFastStroke)
{
    Program program;
    program.keys({"ctrl+c"});
    program.moveMouse(200, 200);
    program.press(1);
    const auto place = [](int i) { return QPoint(200 + 3 * (i % 200), 200 + 12 * (i / 200) + i % 2 * 7); };
    QStringList words;
    for (int i = 0; i < 2000; ++i) {
        words << "mousemove_relative"
              << "--" << QString::number(place(i).x() - (i == 0 ? 200 : place(i - 1).x()))
              << QString::number(place(i).y() - (i == 0 ? 200 : place(i - 1).y()));
    }
    program.xdotool(words);
    program.release(1);
    waitUntil("the stroke's end", [&] { return program.inked(place(1999).x(), place(1999).y()); });
    const QImage canvas = program.canvas();
    int missing = 0;
    for (int i = 0; i < 2000; ++i) {
        missing += canvas.pixelColor(place(i)) == Qt::black ? 0 : 1;
    }
    EXPECT_EQ(missing, 0);
}

TEST(Program, InkOutlivesSmallerAndLargerWindows)
{
    Program program;
    program.keys({"ctrl+r"});
    program.drag(300, 300, 700, 500);
    program.moveMouse(5, 5);
    waitUntil("a box", [&] { return program.inked(699, 400); });
    program.resize(600, 300);
    program.resize(1100, 800);
    waitUntil("the whole box",
              [&] { return program.inked(699, 400) && program.inked(500, 499) && program.inked(300, 400); });
    program.keys({"ctrl+l"});
    program.drag(1000, 400, 1050, 600); // in the part that is new
    waitUntil("a line", [&] { return program.inked(1025, 500); });
}

TEST(Program, PenComesBackFromFarOutside)
{
    Program program;
    program.keyTimes(100, "Left");
    program.keyTimes(120, "Right");
    program.keyTimes(100, "Up");
    program.keyTimes(120, "Down");
    waitUntil("wire from the edge and back", [&] {
        return program.inked(0, 100) && program.inked(172, 100) && program.inked(173, 0) && program.inked(173, 165);
    });
}

TEST(Program, IgnoresKeysAndButtonsNobodyUses)
{
    Program program;
    const auto drawing = [&] { return program.canvas().copy(0, 110, 900, 400); }; // below the wire
    const QImage before = drawing();
    program.keys({"x", "q", "5", "space", "Tab", "Home", "F7", "ctrl+z", "ctrl+q", "alt+x", "Shift_L", "Control_L"});
    program.click(2, 500, 300);
    program.click(8, 500, 300);
    program.keyTimes(3, "Right"); // the pen has not moved, no mode is on
    waitUntil("wire at the start", [&] { return program.inked(114, 100); });
    EXPECT_TRUE(before == drawing());
}

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const Desk desk;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
