#include "tests/gui/pixels.h"
#include "tests/gui/print_server.h"
#include "tests/gui/program.h"

#include <QGuiApplication>
#include <gtest/gtest.h>
#include <string_view>

namespace schemlet {

// Places are canvas pixels: the pen starts at (106, 100), a step is 3 1/3 pixels long.

TEST(Program, StartsWithABlinkingMarkerOnAnEmptyCanvasAndEndsCleanly)
{
    Program program;
    const QRect place(106, 80, 8, 16);
    const auto shown = [&] { return inkedPixels(program.canvas().copy(place)) > 0; };
    waitUntil("the marker", shown);
    waitUntil("no marker", [&] { return !shown(); });
    waitUntil("the marker again", shown);
    EXPECT_GT(program.canvas().width(), 900);
    EXPECT_GT(program.canvas().height(), 600);
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    waitUntil("an otherwise empty canvas", [&] {
        const QImage canvas = program.canvas();
        return toolbox.united(place).contains(inkedPart(canvas)) &&
               inkedPixels(canvas.copy(120, 0, toolbox.left() - 120, 600)) == 0;
    });
    program.closeActiveWindow();
    program.waitForWindow("Schemlet 2.0");
    program.keys({"n"});
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, ArrowKeysLaySolidWireWithShiftAndOnTheNumberPadTooAndOtherKeysNothing)
{
    Program program;
    program.keys({"x", "q", "5", "space", "Tab", "Home", "F7", "ctrl+z", "alt+x", "alt+i", "Shift_L", "Control_L",
                  "Super_L", "percent", "parenleft"});
    program.click(2, 500, 300);
    program.click(8, 500, 300);
    program.keyTimes(10, "Right");
    program.keyTimes(5, "shift+Right");
    program.keyTimes(5, "KP_Right");
    waitUntil("the end of the wire", [&] { return program.inked(171, 100); });
    const QImage below = program.canvas().copy(0, 99, 800, 500);
    EXPECT_LE(inkedPart(below).right(), 173);
    EXPECT_EQ(inkedPart(below).height(), 3);
    QImage solid(QSize(66, 3), below.format());
    solid.fill(Qt::black);
    EXPECT_TRUE(below.copy(106, 0, 66, 3) == solid);
}

TEST(Program, JumperQuestionIsNotForTheWalksArrowKeysAndHopsOverTheWireOrDrawsItThrough)
{
    Program program;
    program.keys({"j"});
    for (const std::string_view reply : {"Return", "y", "n", "Escape", "its frame"}) {
        SCOPED_TRACE(reply);
        program.keyTimes(6, "Right");
        program.keyTimes(6, "Down");
        program.keyTimes(3, "Left");
        program.keyTimes(9, "Up");
        program.waitForWindow("POINT (or) LINE AHEAD...");
        program.keyTimes(3, "Up"); // the walk's last ones, which would move the focus from Yes to No
        if (reply == "its frame") {
            program.closeActiveWindow();
        } else {
            program.keys({reply.data()});
        }
        program.waitForMainWindow();
        const bool yes = reply == "y" || reply == "Return";
        waitUntil("the hop's bulge, or wire through the gap", [&] {
            return program.inked(116, yes ? 90 : 104) && program.inked(122, 95) == yes &&
                   program.inked(116, 104) != yes;
        });
        program.keys({yes ? "Up" : "Left"}); // the keyboard is the canvas's again
        waitUntil("the next step", [&] { return yes ? program.inked(116, 87) : program.inked(113, 103); });
        program.keys({"ctrl+n"});
        program.answer("Schemlet 2.0", "n");
        waitUntil("clean paper", [&] { return !program.inked(116, 100); });
    }
}

TEST(Program, ValueTypedOverThePresetIsPrintedBesideTheSymbolAndBadTextChangesNothing)
{
    Program program;
    const auto resistance = [&](const QString& value, const char* key) {
        program.keys({"r"});
        program.waitForWindow(" RESISTANCE ");
        program.type(value);
        program.keys({key});
    };
    resistance("abc", "Return");
    program.answer("Schemlet 2.0", "Return");
    resistance("", "Escape");
    program.waitForMainWindow();
    EXPECT_FALSE(program.inked(136, 113)); // where the second stroke of a resistor would end
    resistance("47", "Return");
    program.waitForMainWindow();
    waitUntil("the zig-zag and its value", [&] {
        return program.inked(119, 113) && program.inked(169, 113) &&
               inkedPixels(program.canvas().copy(137, 116, 14, 10)) > 5;
    });
    EXPECT_LE(inkedPixels(program.canvas().copy(153, 116, 14, 10)), 5); // "47", not "4710"
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(180, 100); });
}

TEST(Program, SourceIsChosenByMnemonicTypedAndDrawnByKeyboardAlone)
{
    Program program;
    const auto waitForPanel = [&](bool shown) {
        waitUntil("the panel", [&] { return program.shows("panel", "Supply and battery") == shown; });
    };
    program.keys({"s"});
    waitForPanel(true);
    program.keys({"Right"}); // the canvas still has the keyboard
    waitUntil("wire", [&] { return program.inked(109, 100); });
    program.keys({"alt+v", "1", "2", "Return"}); // Alt+V is the View menu's too
    waitUntil("the circle", [&] { return program.inked(123, 87) && program.inked(123, 113); });
    waitForPanel(false);
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(141, 100); });

    const QImage before = program.canvas();
    program.keys({"b", "alt+n", "5", "Escape"});
    waitForPanel(false);
    program.keys({"Down"});
    waitUntil("wire and nothing else", [&] {
        return program.inked(143, 103) && before.copy(0, 0, 140, 300) == program.canvas().copy(0, 0, 140, 300);
    });
}

TEST(Program, SourceIsChosenAndDrawnByMouse)
{
    Program program;
    program.keys({"b"});
    program.clickOn("radio button", "Positive");
    program.keys({"9"});
    program.clickOn("push button", "Cancel");
    waitUntil("no panel", [&] { return !program.shows("panel", "Supply and battery"); });
    program.keys({"b"});
    (void)program.placeOf("panel", "Supply and battery");
    EXPECT_FALSE(program.find("radio button", "Positive")->checked());
    program.clickOn("radio button", "Positive");
    program.keys({"9"});
    program.clickOn("radio button", "Negative");
    program.clickOn("push button", "OK");
    waitUntil("the plates", [&] { return program.inked(113, 110) && program.inked(106, 94); });
    EXPECT_FALSE(program.inked(106, 112)); // the short plate comes first
    waitUntil("no panel", [&] { return !program.shows("panel", "Supply and battery"); });
    program.keys({"Right", "Right"});
    waitUntil("wire from the far end", [&] { return program.inked(119, 100); });
}

TEST(Program, OutputWindowStaysUsableBesideTheMainWindowAndPrintsItselfOnTheDefaultPrinter)
{
    PrintServer server;
    Program program;
    program.keys({"ctrl+u"});
    program.waitForWindow("Output");
    program.activate();
    program.keys({"Right", "Right", "ctrl+u"});
    waitUntil("wire", [&] { return program.inked(112, 100); });
    program.answer("Output", "Escape");
    program.keys({"r"});
    program.answer(" RESISTANCE ", "Return");
    program.keys({"ctrl+u"});
    program.waitForWindow("Output");
    program.keys({"alt+p"});
    waitUntil("a printed page", [&] { return server.printedFiles().size() == 1; });
    const QImage printed = printedPicture(server.printedFiles().first());
    const QRect window = program.placeOf("dialog", "Output");
    ASSERT_EQ(printed.size(), window.size());
    waitUntil("what was printed", // but for what shows where the focus is
              [&] { return differing(printed, program.screen(window)) < 1000; });
    program.keys({"Tab", "alt+p"});
    waitUntil("another page", [&] { return server.printedFiles().size() == 2; });
    EXPECT_TRUE(printedPicture(server.printedFiles().last()) == printed); // on paper it is nowhere

    server.removeQueue();
    program.keys({"alt+p"});
    program.waitForWindow("Schemlet 2.0");
    program.keys({"Return"});
    program.answer("Output", "Escape");

    for (const auto& [key, title, value] : {std::tuple("i", " INDUCTANCE ", "-1"), {"c", " CAPACITANCE ", "4"}}) {
        program.keys({key});
        program.waitForWindow(title);
        program.type(value);
        program.answer(title, "Return");
    }
    program.keys({"ctrl+u"});
    program.waitForWindow("Schemlet 2.0"); // no resonance
    program.keys({"Return"});
    program.answer("Output", "Escape");
}

TEST(Program, MouseToolsDrawWhatOutlivesSmallerAndLargerWindows)
{
    Program program;
    program.keys({"ctrl+t", "ctrl+l"}); // without the toolbox
    program.drag(300, 300, 400, 300);
    waitUntil("a line", [&] { return program.inked(350, 300); });

    program.keys({"ctrl+r"});
    program.drag(300, 320, 400, 360);
    waitUntil("an empty box", [&] {
        return program.inked(399, 340) && program.inked(350, 359) && program.inked(300, 340) &&
               !program.inked(350, 340);
    });

    program.openPopup(500, 500); // eraser, a separator, pencil
    program.keys({"Down", "Down", "Return"});
    program.waitForText("Pencil"); // the menu no longer holds the mouse
    program.drag(300, 400, 400, 440);
    waitUntil("the whole stroke, and the marker at its end", [&] {
        return program.inked(350, 419) && program.inked(399, 439) &&
               inkedPixels(program.canvas().copy(402, 420, 8, 16)) > 0;
    });

    const QImage before = program.canvas().copy(0, 300, 800, 300);
    program.resize(600, 300);
    program.resize(1100, 800);
    program.openPopup(500, 400);
    program.keys({"Escape"});
    waitUntil("the same, without a menu, and paper in the part that is new",
              [&] { return program.canvas().copy(0, 300, 800, 300) == before && !program.inked(1025, 500); });
    program.keys({"ctrl+l"});
    program.drag(1000, 400, 1050, 600);
    program.keys({"Right", "Right"}); // the pen went along to the last press of the left button
    waitUntil("a line and wire", [&] { return program.inked(1025, 500) && program.inked(1004, 399); });
}

TEST(Program, EraserWipesOnlyInEraseModeAndTheMouseGoesThroughItsLabel)
{
    Program program;
    const int middle = program.canvas().width() / 2;
    program.keys({"ctrl+r"});
    program.drag(middle + 60, 20, middle - 60, 200);
    waitUntil("a box", [&] { return program.inked(middle, 199) && program.inked(middle, 20); });
    program.keys({"e", "Right", "Right", "Right"});
    program.waitForText("You are in Erase Mode.*");
    waitUntil("the label over the box", [&] { return program.pixel(middle, 20) != QColor(Qt::black); });
    program.moveMouse(middle - 60, 130);
    waitUntil("the outline", [&] { return program.inked(middle - 59, 120); });
    program.drag(middle - 20, 20, middle + 20, 20);
    program.drag(middle - 70, 130, middle - 40, 130);
    program.keys({"e"});
    program.moveMouse(middle, 400);
    waitUntil("clean paper where the eraser was", [&] {
        return !program.inked(middle, 20) && !program.inked(middle - 60, 130) && program.inked(middle - 50, 20) &&
               program.inked(middle + 59, 130);
    });
    EXPECT_FALSE(program.inked(middle + 68, 20)); // arrow keys laid no wire
    waitUntil("no label", [&] { return !program.shows("label", "You are in Erase Mode.*"); });
}

TEST(Program, InksEveryPointOfAFastStroke)
{
    Program program;
    program.keys({"ctrl+c"});
    program.moveMouse(200, 200);
    const auto place = [](int i) { return QPoint(200 + 3 * (i % 200), 200 + 12 * (i / 200) + i % 2 * 7); };
    program.xdotool({"mousedown", "1"});
    QStringList words;
    for (int i = 0; i < 2000; ++i) {
        const QPoint step = place(i) - (i == 0 ? QPoint(200, 200) : place(i - 1));
        words << "mousemove_relative"
              << "--" << QString::number(step.x()) << QString::number(step.y());
    }
    program.xdotool(words << "mouseup"
                          << "1");
    waitUntil("every point", [&] {
        const QImage canvas = program.canvas();
        int inked = 0;
        for (int i = 0; i < 2000; ++i) {
            inked += isInked(canvas, place(i).x(), place(i).y()) ? 1 : 0;
        }
        return inked == 2000;
    });
}

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const Desk desk;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
