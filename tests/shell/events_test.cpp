#include "shell/events.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Deliver, LeavesWhatHasNoCommand)
{
    Bench bench;
    for (const char* const name : {"gates", "batterycolor", "nothing of this name"}) {
        bench.click(name);
        EXPECT_EQ(bench.outcome(), nothing);
    }
}

TEST(StatusBar, ShowsTheToolInHandEraseModeAndColoursOnTheToolbarToo)
{
    Bench bench;
    bench.dialogs.picked = 0x123456;
    for (const char* const tool : {"Fore", "Eraser", "Pencil", "Box", "Line"}) {
        bench.click(tool);
        bench.tick(control::statusTimer);
        for (const char* const button : {"Pencil", "Box", "Line"}) {
            EXPECT_EQ(bench.window.checked(button), button == std::string_view(tool));
        }
    }
    EXPECT_TRUE(bench.window.checked("Eraser"));
    EXPECT_EQ(bench.window.at("Fore").backColor, 0x123456U);
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
        std::string shown;
        for (const Name panel : {control::sbPointer, control::sbOffCanvas, control::sbPen, control::sbHeading,
                                 control::sbTool, control::sbErase, control::sbJumpers}) {
            EXPECT_NE(bench.window.visible(panel), bench.window.at(panel).text.empty() && panel != control::sbJumpers);
            shown += bench.window.at(panel).text + "|";
        }
        return shown + std::string(bench.window.cursor.picture) + "|" + bench.window.at(control::Canvas).description;
    };
    const std::string atStart =
        "||1600, 1500|→ Right|Pen|Normal mode||pen|Pen at 1600, 1500 twips, heading right, tool Pen";
    EXPECT_EQ(panels(), atStart);
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);

    bench.window.canvas = {9000, 1450}; // the pen is on the first pixel below
    bench.press(key::up);
    for (const char letter : {'e', 'j'}) {
        bench.type(letter);
    }
    bench.click("rectan");
    bench.mouseMove(0, 6194, 4575);
    EXPECT_EQ(panels(), atStart);
    EXPECT_GT(bench.window.intervals.at("statusTimer"), 0);

    bench.tick(control::statusTimer);
    EXPECT_EQ(panels(), "412, 305 px|off the canvas|1600, 1450|↑ Up|Rectangle|Erase mode|Jumpers|eraser|"
                        "Pen at 1600, 1450 twips, off the canvas, heading up, tool Rectangle, erase mode, "
                        "automatic jumpers");
    EXPECT_EQ(bench.window.at(control::panel).awayFrom.y, 1450);
    EXPECT_EQ(bench.window.intervals.at("statusTimer"), 0);

    bench.form.heading = answer::no; // as the question about saving leaves it
    const std::string hint = bench.window.at(control::sb).text;
    for (const char letter : {'e', 'j'}) {
        bench.type(letter);
    }
    bench.press(key::left);
    bench.form.heading = answer::no;
    bench.hover({}); // the mouse leaves the canvas
    bench.tick(control::statusTimer);
    EXPECT_EQ(panels(), "|off the canvas|1550, 1450|no direction, press an arrow key|Rectangle|Normal mode||box|"
                        "Pen at 1550, 1450 twips, off the canvas, no direction, press an arrow key, tool Rectangle");
    EXPECT_EQ(bench.window.at(control::sb).text, hint);
}

TEST(StatusBar, SaysForSomeSecondsWhyACommandDrewNothing)
{
    struct Case {
        int heading;
        std::function<void(Bench&)> command;
        const char* notice;
    };
    const auto click = [](Name name) { return [name](Bench& bench) { bench.click(name); }; };
    const auto enter = [](const char* part) { return [part](Bench& bench) { bench.enter(part); }; };
    constexpr int none = answer::no;
    constexpr auto notDrawn = "Nothing drawn: no direction";
    constexpr auto counted = "Counted but not drawn: no direction";
    for (const Case& c : {Case{heading::up, click("and"), "An AND gate needs the pen heading right"},
                          Case{heading::left, click("Image5"), "A NAND gate needs the pen heading right"},
                          Case{heading::right, click("and"), ""},
                          Case{none, click("and"), notDrawn},
                          Case{none, click("not"), notDrawn},
                          Case{heading::left, click("not"), ""},
                          Case{none, click("emitter"), ""},
                          Case{none, click("jumper"), notDrawn},
                          Case{heading::up, click("jumper"), ""},
                          Case{none, enter("R4"), counted},
                          Case{none, enter("V5"), counted},
                          Case{none, enter("+9"), notDrawn},
                          Case{heading::up, enter("R4"), ""},
                          Case{heading::up, enter("-9"), ""},
                          Case{heading::up, enter("C0"), "A value of 0 draws nothing"},
                          Case{heading::up, enter("C"), ""},
                          Case{heading::up,
                               [](Bench& bench) {
                                   bench.type('s');
                                   bench.choose(control::Option3);
                                   bench.type('s'); // takes the choice back
                                   bench.confirm("5");
                               },
                               "Nothing drawn: no kind was chosen"},
                          Case{heading::up, click("open"), "Open works after the first arrow key"},
                          Case{heading::up, click("bc"), "Black reaches the panel and the eraser only"},
                          Case{heading::up, click("batterycolor"), "No effect: batteries are always black"},
                          Case{heading::up, click("Thyristorscolor"), "No effect: thyristors take the last color"}}) {
        SCOPED_TRACE(c.notice);
        Bench bench;
        bench.form.confirm.fill(0);
        bench.form.heading = c.heading;
        bench.mouseMove(0, 1500, 1500);
        c.command(bench);
        bench.tick(control::statusTimer);
        const auto& panel = bench.window.at(control::sbNotice);
        EXPECT_EQ(panel.text, c.notice);
        const bool said = !panel.text.empty();
        EXPECT_EQ(panel.visible, said);
        EXPECT_EQ(bench.window.visible(control::sbPointer), !said); // it gives way
        EXPECT_TRUE(bench.window.at(control::Canvas).description.starts_with(said ? panel.text + ". Pen" : "Pen"));
        EXPECT_EQ(bench.window.intervals["noticeTimer"], said ? 5000 : 0);
        bench.tick(control::noticeTimer);
        EXPECT_FALSE(panel.visible);
        EXPECT_EQ(bench.window.intervals["noticeTimer"], 0);
    }
}

TEST(Colors, CanvasColourWipesTheDrawingAndReachesToolboxAndPanelBlackOnlyThePanel)
{
    Bench bench;
    bench.dialogs.picked = 0x0000FF;
    bench.click("bc");
    EXPECT_EQ(bench.drawn(), "back 255\n");
    bench.dialogs.picked = black;
    bench.click("backc");
    bench.tick(control::statusTimer);
    EXPECT_EQ(bench.window.at("Back").backColor, 0x0000FFU);
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
