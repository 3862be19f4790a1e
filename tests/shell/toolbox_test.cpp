#include "shell/toolbox.h"

#include "platform/event.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

void click(Bench& bench, Name name)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = name});
}

void hoverOver(Bench& bench, Name name)
{
    deliver(bench.form, {.kind = Event::Kind::hover, .name = name});
}

void moveMouse(Bench& bench, float x, float y)
{
    deliver(bench.form, {.kind = Event::Kind::mouseMove, .x = x, .y = y});
}

} // namespace

TEST(Toolbox, FollowsTheMouseFromAClickOrAMoveOverItToTheNextOne)
{
    Bench bench;
    moveMouse(bench, 5000, 6000);
    EXPECT_EQ(bench.window.at(control::Frame2).left, 0);
    click(bench, control::Label1);
    moveMouse(bench, 5000, 6000);
    EXPECT_EQ(bench.window.at(control::Frame2).left, 5000);
    EXPECT_EQ(bench.window.at(control::Frame2).top, 6000);
    hoverOver(bench, control::Label1); // only the frame itself counts
    hoverOver(bench, "Image1");
    hoverOver(bench, control::Frame2);
    moveMouse(bench, 100, 100);
    EXPECT_EQ(bench.window.at(control::Frame2).left, 5000);
    hoverOver(bench, control::Frame2);
    moveMouse(bench, 100, 100);
    EXPECT_EQ(bench.window.at(control::Frame2).left, 100);
}

TEST(Toolbox, PicturesSayWhatTheyDrawAndDoSo)
{
    Bench bench;
    bench.form.confirm.fill(0);
    for (const auto& [name, hint, pen] : {std::tuple{"Image1", " Click to draw AND Gate ", "1925 1550"},
                                          {"Image5", " Click to draw NAND Gate ", "2310 1625"}}) {
        hoverOver(bench, name);
        EXPECT_EQ(bench.window.at(control::sb).text, hint);
        click(bench, name);
        EXPECT_EQ(bench.pen(), pen);
    }
    click(bench, "Image18");
    EXPECT_TRUE(bench.window.at(control::sup).visible);
    click(bench, "Image20");
    EXPECT_EQ(bench.window.at(control::sb).text, " Press 'E' to return to normal mode ");
    EXPECT_EQ(bench.form.eraseMode, 1);
}

TEST(View, EachTogglesItsOwnMark)
{
    Bench bench;
    for (const auto& [item, control] : {std::pair{"lll", control::Toolbar1},
                                        {"sss", control::statusBar},
                                        {"toolbox", control::Frame2},
                                        {"Image7", control::Frame2}}) {
        const Name mark = std::string_view(item) == "Image7" ? "toolbox" : item;
        bench.window.setVisible(control, true);
        bench.window.setChecked(mark, true);
        for (const bool shown : {false, true}) {
            click(bench, item);
            EXPECT_EQ(bench.window.visible(control), shown);
            EXPECT_EQ(bench.window.checked(mark), shown);
        }
    }
    // The toolbar's button flips the mark on its own, the menu's command sets it.
    bench.window.setChecked("toolbox", false);
    click(bench, "ToolBox");
    EXPECT_FALSE(bench.window.visible(control::Frame2));
    EXPECT_TRUE(bench.window.checked("toolbox"));
    click(bench, "toolbox");
    EXPECT_TRUE(bench.window.visible(control::Frame2));
    EXPECT_TRUE(bench.window.checked("toolbox"));
}

TEST(Toolbar, ButtonsRunTheirCommandsAndOtherKeysNone)
{
    Bench bench;
    for (const auto& [button, tool] : {std::pair{"Line", &CanvasState::lineTool},
                                       {"Pencil", &CanvasState::pencilTool},
                                       {"Box", &CanvasState::rectTool}}) {
        click(bench, button);
        EXPECT_EQ(bench.form.*tool, 1);
    }
    EXPECT_EQ(bench.form.lineTool + bench.form.pencilTool, 0);
    click(bench, "Eraser");
    EXPECT_EQ(bench.form.eraseMode, 1);
    bench.dialogs.picked = 0x123456;
    click(bench, "Fore");
    EXPECT_EQ(bench.form.wireColor, 0x123456U);
    click(bench, "Output");
    EXPECT_EQ(bench.output.timesShown, 1);
    click(bench, "Nothing");
}

TEST(View, PointerFollowsTheTool)
{
    Bench bench;
    const auto shown = [&] {
        deliver(bench.form, {.kind = Event::Kind::tick, .name = control::statusTimer});
        return bench.window.cursor;
    };
    EXPECT_EQ(shown(), "pen");
    for (const auto& [item, cursor] :
         {std::pair{"linee", "line"}, {"rectan", "box"}, {"pencil1", "pencil"}, {"eraser", "eraser"}}) {
        click(bench, item);
        EXPECT_EQ(shown(), cursor);
    }
}
