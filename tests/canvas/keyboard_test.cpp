#include "canvas/keyboard.h"

#include "platform/event.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

struct ArrowCase {
    const char* name;
    int code;
    int heading;
    const char* probe;
    const char* dots;
    const char* pen;
    const char* marker;
};

// One step from the start, by hand: probes and marker differ between level and upright steps.
const ArrowCase arrowCases[] = {
    {"right", key::right, 1, "1710 1500",
     "circle 1600 1500 10\ncircle 1610 1500 10\ncircle 1620 1500 10\ncircle 1630 1500 10\ncircle 1640 1500 10\n",
     "1650 1500", "1650 1200"},
    {"left", key::left, 2, "1490 1500",
     "circle 1600 1500 10\ncircle 1590 1500 10\ncircle 1580 1500 10\ncircle 1570 1500 10\ncircle 1560 1500 10\n",
     "1550 1500", "1550 1200"},
    {"up", key::up, 3, "1600 1400",
     "circle 1600 1500 10\ncircle 1600 1490 10\ncircle 1600 1480 10\ncircle 1600 1470 10\ncircle 1600 1460 10\n",
     "1600 1450", "1500 1150"},
    {"down", key::down, 4, "1600 1600",
     "circle 1600 1500 10\ncircle 1600 1510 10\ncircle 1600 1520 10\ncircle 1600 1530 10\ncircle 1600 1540 10\n",
     "1600 1550", "1700 1250"},
};

} // namespace

TEST(ArrowKey, LaysWireAndMovesPenAndMarker)
{
    for (const ArrowCase& c : arrowCases) {
        SCOPED_TRACE(c.name);
        Bench bench;
        bench.form.wireColor = 0x00FF00;
        keyDown(bench.form, c.code);
        EXPECT_EQ(bench.drawn(), c.dots);
        EXPECT_EQ(bench.surface.foreColor, 0x00FF00U);
        EXPECT_EQ(bench.surface.probedAt, c.probe);
        EXPECT_EQ(bench.pen(), c.pen);
        EXPECT_EQ(bench.marker(), c.marker);
        EXPECT_EQ(bench.form.heading, c.heading);
        EXPECT_EQ(bench.form.penMoved, 1);
        EXPECT_EQ(bench.form.savedMark, 0);
    }
}

TEST(ArrowKey, InEraseModeOnlyTurnsThePen)
{
    for (const ArrowCase& c : arrowCases) {
        SCOPED_TRACE(c.name);
        Bench bench;
        keyPress(bench.form, 'e');
        keyDown(bench.form, c.code);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.pen(), "1600 1500");
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.form.heading, c.heading);
        EXPECT_EQ(bench.form.penMoved, 1);
    }
}

TEST(ArrowKey, WalksAMillionStepsOffTheCanvasAndComesBack)
{
    Bench bench;
    bench.surface.recording = false;
    const auto walk = [&](int code) {
        for (int step = 0; step < 1'000'000; ++step) {
            keyDown(bench.form, code);
        }
        return bench.pen();
    };
    EXPECT_EQ(walk(key::right), "50001600 1500");
    EXPECT_EQ(walk(key::left), "1600 1500");
    EXPECT_EQ(walk(key::left), "-49998400 1500");
    EXPECT_EQ(walk(key::right), "1600 1500");
    EXPECT_EQ(walk(key::down), "1600 50001500");
    EXPECT_EQ(walk(key::up), "1600 1500");
    EXPECT_EQ(walk(key::up), "1600 -49998500");
    EXPECT_EQ(bench.marker(), "1500 -49998800");
}

TEST(JumperQuestion, ComesOnlyWithTheSwitchOnAndTheWiresOwnColourAhead)
{
    struct Case {
        int autoJumper = 0;
        std::optional<Color> ahead;
        bool asked = false;
    };
    constexpr Color red = 0x0000FF;
    for (const Case& c : {Case{1, red, true}, Case{0, red, false}, Case{1, black, false}, Case{1, {}, false}}) {
        Bench bench;
        bench.form.wireColor = red;
        bench.form.autoJumper = c.autoJumper;
        bench.surface.underPoint = c.ahead;
        if (c.asked) {
            bench.dialogs.expect("POINT (or) LINE AHEAD...", answer::no);
        }
        keyDown(bench.form, key::right);
        EXPECT_EQ(bench.form.jumperAnswer, c.asked ? answer::no : 0);
        EXPECT_EQ(bench.pen(), "1650 1500"); // the wire is drawn through after No as well
    }
}

TEST(JumperQuestion, YesHopsFirstAndLaysTheWireBehindTheCrossing)
{
    Bench bench;
    bench.form.autoJumper = 1;
    bench.surface.underPoint = black;
    bench.dialogs.expect("POINT (or) LINE AHEAD...", answer::yes);
    keyDown(bench.form, key::up);
    EXPECT_EQ(bench.drawn(), "arc 1600 1390 100 5 1.5\n"
                             "circle 1600 1280 10\ncircle 1600 1270 10\ncircle 1600 1260 10\n"
                             "circle 1600 1250 10\ncircle 1600 1240 10\n");
    EXPECT_EQ(bench.dialogs.lastPrompt, " Do you want to draw a JUMPER ?");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::yesNoQuestion);
    EXPECT_EQ(bench.pen(), "1600 1230");
    EXPECT_EQ(bench.marker(), "1500 930");
}

TEST(EraseMode, FlipsWidthModeAndLabelEachFromItsOwnState)
{
    Bench bench;
    const auto state = [&] {
        return std::tuple(bench.surface.drawWidth(), bench.form.eraseMode, bench.window.at(control::Label27).visible);
    };
    keyPress(bench.form, 'E');
    EXPECT_EQ(state(), std::tuple(10, 1, true));
    keyPress(bench.form, 'e');
    EXPECT_EQ(state(), std::tuple(2, 0, false));

    bench.surface.setDrawWidth(10);
    keyPress(bench.form, 'e');
    EXPECT_EQ(state(), std::tuple(2, 1, true));
}

TEST(AutomaticJumpers, KeyAndMenuItemFlipTheSwitchButOnlyTheItemItsMark)
{
    Bench bench;
    keyPress(bench.form, 'j');
    EXPECT_EQ(bench.form.autoJumper, 1);
    EXPECT_FALSE(bench.window.at("jj").checked);
    jj(bench.form);
    EXPECT_EQ(bench.form.autoJumper, 0);
    EXPECT_TRUE(bench.window.at("jj").checked);
    keyPress(bench.form, 'J');
    EXPECT_EQ(bench.form.autoJumper, 1);
    EXPECT_TRUE(bench.window.at("jj").checked);
}

TEST(OtherKeys, OnlyMarkTheDrawingChanged)
{
    for (const int code : {0, 36, 41, 65}) {
        Bench bench;
        keyDown(bench.form, code);
        EXPECT_EQ(bench.form.savedMark, 0);
        EXPECT_EQ(bench.form.penMoved, 0);
        EXPECT_EQ(bench.pen(), "1600 1500");
    }
    for (const int character : {static_cast<int>('x'), static_cast<int>('@'), 0x1B, 0xE9, 0x20AC}) {
        Bench bench;
        keyPress(bench.form, character);
        EXPECT_EQ(bench.form.savedMark, 0);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.form.eraseMode + bench.form.autoJumper, 0);
    }
}
