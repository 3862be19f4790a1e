#include "shell/events.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

void click(Bench& bench, Name item)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = item});
}

} // namespace

TEST(Deliver, HandsEachKindOfEventToItsHandler)
{
    Bench bench;
    deliver(bench.form, {.kind = Event::Kind::mouseDown, .code = button::left, .x = 3000, .y = 2000});
    EXPECT_EQ(bench.pen(), "3000 2000");
    deliver(bench.form, {.kind = Event::Kind::mouseUp, .code = button::left, .x = 3000, .y = 2000});
    EXPECT_EQ(bench.marker(), "3000 1700");
    deliver(bench.form, {.kind = Event::Kind::keyDown, .code = key::down});
    EXPECT_EQ(bench.pen(), "3000 2050");
    deliver(bench.form, {.kind = Event::Kind::keyPress, .code = 'e'});
    EXPECT_EQ(bench.form.eraseMode, 1);
    deliver(bench.form, {.kind = Event::Kind::mouseMove, .x = 1000, .y = 1000});
    EXPECT_TRUE(bench.window.at(control::Shape1).visible);
    deliver(bench.form, {.kind = Event::Kind::tick, .name = control::Timer2});
    EXPECT_EQ(bench.form.blinkCount, 25);
}

TEST(Deliver, RunsMenuItemsByNameThePopupsLikeTheBars)
{
    Bench bench;
    bench.form.confirm[gatesConfirm] = 0;
    for (const auto& [bar, popup, tool] : {std::tuple{"pencil1", "penc", &CanvasState::pencilTool},
                                           {"rectan", "rectang", &CanvasState::rectTool},
                                           {"linee", "lineee", &CanvasState::lineTool}}) {
        for (const char* const item : {bar, popup}) {
            bench.form.pencilTool = bench.form.rectTool = bench.form.lineTool = 0;
            click(bench, item);
            EXPECT_EQ(bench.form.*tool, 1) << item;
        }
    }
    click(bench, "eraser");
    EXPECT_EQ(bench.form.eraseMode, 1);
    click(bench, "eras");
    EXPECT_EQ(bench.form.eraseMode, 0);
    click(bench, "jumper");
    EXPECT_EQ(bench.drawn(), "arc 1700 1500 100 3.5 0\n");
    click(bench, "nand");
    EXPECT_EQ(bench.surface.ink.size(), 8U);
    click(bench, "gates"); // a submenu has no command
    click(bench, "nothing of this name");
    EXPECT_EQ(bench.surface.ink.size(), 8U);
}

TEST(StatusBar, FollowsOnceForAllEventsOfAMoment)
{
    Bench bench;
    const auto panels = [&] {
        return bench.window.at(control::sbPen).text + "|" + bench.window.at(control::sbHeading).text + "|" +
               bench.window.at(control::sbTool).text + "|" + bench.window.at(control::sbErase).text;
    };
    EXPECT_EQ(panels(), "1600, 1500|→ Right|Pen|Normal mode");
    const auto& spoken = bench.window.at(control::Canvas).description;
    EXPECT_EQ(spoken, "Pen at 1600, 1500 twips, heading right, tool Pen");
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);

    deliver(bench.form, {.kind = Event::Kind::keyDown, .code = key::up});
    deliver(bench.form, {.kind = Event::Kind::keyPress, .code = 'e'});
    click(bench, "rectan");
    EXPECT_EQ(panels(), "1600, 1500|→ Right|Pen|Normal mode");
    EXPECT_GT(bench.window.intervals.at("statusTimer"), 0);

    deliver(bench.form, {.kind = Event::Kind::tick, .name = control::statusTimer});
    EXPECT_EQ(panels(), "1600, 1450|↑ Up|Rectangle|Erase mode");
    EXPECT_EQ(spoken, "Pen at 1600, 1450 twips, heading up, tool Rectangle, erase mode");
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);
}
