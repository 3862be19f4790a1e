#include "shell/events.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Deliver, RunsMenuItemsByNameThePopupsLikeTheBarsAndTheToolbars)
{
    Bench bench;
    for (const auto& [names, tool, cursor] :
         {std::tuple{std::array{"pencil1", "penc", "Pencil"}, &CanvasState::pencilTool, "pencil"},
          {std::array{"rectan", "rectang", "Box"}, &CanvasState::rectTool, "box"},
          {std::array{"linee", "lineee", "Line"}, &CanvasState::lineTool, "line"}}) {
        for (const char* const name : names) {
            bench.form.pencilTool = bench.form.rectTool = bench.form.lineTool = 0;
            bench.click(name);
            EXPECT_EQ(bench.form.*tool, 1) << name;
            bench.tick(control::statusTimer);
            EXPECT_EQ(bench.window.cursor, cursor);
        }
    }
    for (const auto& [name, erasing] : {std::pair{"eraser", 1}, {"eras", 0}, {"Eraser", 1}}) {
        bench.click(name);
        EXPECT_EQ(bench.form.eraseMode, erasing) << name;
    }
    bench.dialogs.picked = 0x123456;
    for (const char* const name : {"forec", "foreco", "Fore"}) {
        bench.form.wireColor = black;
        bench.click(name);
        EXPECT_EQ(bench.form.wireColor, 0x123456U) << name;
    }
    bench.click("Output");
    EXPECT_EQ(bench.output.timesShown, 1);
    for (const char* const name : {"gates", "batterycolor", "nothing of this name"}) { // without a command
        bench.click(name);
        EXPECT_EQ(bench.outcome(), nothing);
    }
}

TEST(Deliver, LetsWhatComesTooEarlyWaitForTheBoxesAnswerButNotTheClock)
{
    Bench bench;
    bench.dialogs.expectInput(" RESISTANCE ", "5");
    bench.dialogs.meanwhile = [&bench] {
        bench.press(key::down);
        bench.mouseUp(button::left, 30, 450);
        bench.tick(control::statusTimer);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.form.statusDue, 0);
    };
    bench.press(0); // makes the status bar due
    bench.type('r');
    EXPECT_EQ(bench.form.resist, 5);
    EXPECT_EQ(bench.pen(), "2650 1550"); // past the resistor, then down
    EXPECT_EQ(bench.marker(), "30 150");
}

TEST(StatusBar, FollowsOnceForAllEventsOfAMoment)
{
    Bench bench;
    const auto panels = [&] {
        return bench.window.at(control::sbPen).text + "|" + bench.window.at(control::sbHeading).text + "|" +
               bench.window.at(control::sbTool).text + "|" + bench.window.at(control::sbErase).text + "|" +
               bench.window.cursor + "|" + bench.window.at(control::Canvas).description;
    };
    const std::string atStart =
        "1600, 1500|→ Right|Pen|Normal mode|pen|Pen at 1600, 1500 twips, heading right, tool Pen";
    EXPECT_EQ(panels(), atStart);
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);

    bench.press(key::up);
    bench.type('e');
    bench.click("rectan");
    EXPECT_EQ(panels(), atStart);
    EXPECT_GT(bench.window.intervals.at("statusTimer"), 0);

    bench.tick(control::statusTimer);
    EXPECT_EQ(panels(), "1600, 1450|↑ Up|Rectangle|Erase mode|eraser|"
                        "Pen at 1600, 1450 twips, heading up, tool Rectangle, erase mode");
    EXPECT_EQ(bench.window.at(control::panel).awayFrom.y, 1450);
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);
}

TEST(Colors, CanvasColourWipesTheDrawingAndReachesToolboxAndPanelBlackOnlyThePanel)
{
    Bench bench;
    bench.dialogs.picked = 0x0000FF;
    bench.click("bc");
    EXPECT_EQ(bench.drawn(), "back 255\n");
    bench.dialogs.picked = black;
    bench.click("backc");
    EXPECT_EQ(bench.outcome(), nothing);
    EXPECT_EQ(bench.window.at(control::Frame2).backColor, 0x0000FFU);
    EXPECT_EQ(bench.form.canvasBackColor, black);
    for (const Name control : {control::panel, control::Option2, control::Option3, control::Option4, control::Option5,
                               control::bat, control::sup}) {
        EXPECT_EQ(bench.window.at(control).backColor, black) << control;
    }
}

TEST(Confirmations, AnyOtherValueBecomesOneAndTheMarkFlipsOnItsOwn)
{
    Bench bench;
    bench.form.confirm[gatesConfirm] = 5;
    bench.click("gg");
    EXPECT_EQ(bench.form.confirm[gatesConfirm], 1);
    EXPECT_FALSE(bench.window.checked("gg"));
}
