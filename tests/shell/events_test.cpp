#include "shell/events.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

TEST(Deliver, LeavesWhatHasNoCommand)
{
    Rig rig;
    for (const char* const name : {"gates", "batterycolor", "nothing of this name"}) {
        rig.click(name);
        EXPECT_EQ(rig.outcome(), nothing);
    }
}

TEST(StatusBar, ShowsTheToolInHandEraseModeAndColoursOnTheToolbarToo)
{
    Rig rig;
    rig.dialogs.picked = 0x123456;
    for (const char* const tool : {"Fore", "Eraser", "Pencil", "Box", "Line"}) {
        rig.click(tool);
        rig.tick(control::statusTimer);
        for (const char* const button : {"Pencil", "Box", "Line"}) {
            EXPECT_EQ(rig.window.at(button).checked, button == std::string_view(tool));
        }
    }
    EXPECT_TRUE(rig.window.checked("Eraser"));
    EXPECT_EQ(rig.window.at("Fore").backColor, 0x123456U);
}

TEST(Deliver, LetsWhatComesTooEarlyWaitForTheBoxesAnswerButNotTheClock)
{
    Rig rig;
    rig.dialogs.expectInput(" RESISTANCE ", "5");
    rig.dialogs.meanwhile = [&rig] {
        rig.press(key::down);
        rig.mouseUp(button::left, 30, 450);
        rig.tick(control::statusTimer);
        EXPECT_EQ(rig.drawn(), "");
        EXPECT_EQ(rig.form.statusDue, 0);
    };
    rig.press(0); // makes the status bar due
    rig.type('r');
    EXPECT_EQ(rig.form.resist, 5);
    EXPECT_EQ(rig.pen(), "2650 1550"); // past the resistor, then down
    EXPECT_EQ(rig.marker(), "30 150");
}

TEST(StatusBar, FollowsOnceForAllEventsOfAMoment)
{
    Rig rig;
    const auto panels = [&] {
        std::string shown;
        for (const Name panel : {control::sbPointer, control::sbOffCanvas, control::sbPen, control::sbHeading,
                                 control::sbTool, control::sbErase, control::sbJumpers}) {
            EXPECT_NE(rig.window.visible(panel), rig.window.at(panel).text.empty() && panel != control::sbJumpers);
            shown += rig.window.at(panel).text + "|";
        }
        return shown + std::string(rig.window.cursor.picture) + "|" + rig.window.at(control::Canvas).description;
    };
    const std::string atStart =
        "||1600, 1500|→ Right|Pen|Normal mode||pen|Pen at 1600, 1500 twips, heading right, tool Pen";
    EXPECT_EQ(panels(), atStart);
    EXPECT_EQ(rig.window.intervals.at("statusTimer"), 0);

    rig.window.canvas = {9000, 1450}; // the pen is on the first pixel below
    rig.press(key::up);
    for (const char letter : {'e', 'j'}) {
        rig.type(letter);
    }
    rig.click("rectan");
    rig.mouseMove(0, 6194, 4575);
    EXPECT_EQ(panels(), atStart);
    EXPECT_GT(rig.window.intervals.at("statusTimer"), 0);

    rig.tick(control::statusTimer);
    EXPECT_EQ(panels(), "412, 305 px|off the canvas|1600, 1450|↑ Up|Rectangle|Erase mode|Jumpers|eraser|"
                        "Pen at 1600, 1450 twips, off the canvas, heading up, tool Rectangle, erase mode, "
                        "automatic jumpers");
    EXPECT_EQ(rig.window.at(control::panel).awayFrom.y, 1450);
    EXPECT_EQ(rig.window.intervals.at("statusTimer"), 0);

    rig.form.heading = answer::no; // as the question about saving leaves it
    const std::string hint = rig.window.at(control::sb).text;
    for (const char letter : {'e', 'j'}) {
        rig.type(letter);
    }
    rig.press(key::left);
    rig.form.heading = answer::no;
    rig.hover(""); // the mouse leaves the canvas
    rig.tick(control::statusTimer);
    EXPECT_EQ(panels(), "|off the canvas|1550, 1450|no direction, press an arrow key|Rectangle|Normal mode||box|"
                        "Pen at 1550, 1450 twips, off the canvas, no direction, press an arrow key, tool Rectangle");
    EXPECT_EQ(rig.window.at(control::sb).text, hint);

    for (const auto kind : {Event::Kind::hover, Event::Kind::mouseDown, Event::Kind::mouseUp}) {
        rig.hover("");
        rig.events.deliver({.kind = kind, .name = "Canvas", .code = button::middle, .place = {150, 300}});
        rig.tick(control::statusTimer);
        EXPECT_EQ(rig.window.at(control::sbPointer).text, "10, 20 px");
    }
}

TEST(StatusBar, SaysUntilTheNextCommandWhyThisOneDrewNothing)
{
    struct Case {
        int heading;
        std::function<void(Rig&)> command;
        const char* notice;
    };
    const auto click = [](Name name) { return [name](Rig& rig) { rig.click(name); }; };
    const auto enter = [](const char* part) { return [part](Rig& rig) { rig.enter(part); }; };
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
                               [](Rig& rig) {
                                   rig.type('s');
                                   rig.choose(control::Option3);
                                   rig.type('s'); // takes the choice back
                                   rig.confirm("5");
                               },
                               "Nothing drawn: no kind was chosen"},
                          Case{heading::up, click("open"), "Open works after the first arrow key"},
                          Case{heading::up, click("bc"), "Black reaches the panel and the eraser only"},
                          Case{heading::up, click("batterycolor"), "No effect: batteries are always black"},
                          Case{heading::up, click("Thyristorscolor"), "No effect: thyristors take the last color"}}) {
        SCOPED_TRACE(c.notice);
        Rig rig;
        rig.form.confirm.fill(0);
        rig.form.heading = c.heading;
        rig.mouseMove(0, 1500, 1500);
        c.command(rig);
        rig.tick(control::statusTimer);
        const auto& panel = rig.window.at(control::sbNotice);
        EXPECT_EQ(panel.text, c.notice);
        const bool said = !panel.text.empty();
        EXPECT_EQ(panel.visible, said);
        EXPECT_TRUE(rig.window.visible(control::sbPointer));
        EXPECT_TRUE(rig.window.at(control::Canvas).description.starts_with(said ? panel.text + ". Pen" : "Pen"));
        EXPECT_EQ(rig.window.intervals["noticeTimer"], said ? 5000 : 0);
        rig.mouseUp(button::right, 1500, 1500);
        rig.hover("Image1");
        rig.tick(control::statusTimer);
        EXPECT_EQ(panel.visible, said);
        rig.type('j'); // the notice does not speak of that
        rig.tick(control::statusTimer);
        EXPECT_FALSE(panel.visible);
        EXPECT_EQ(rig.window.intervals["noticeTimer"], 0);
    }
}

TEST(Colors, CanvasColourWipesTheDrawingAndReachesToolboxAndPanelBlackOnlyThePanel)
{
    Rig rig;
    rig.dialogs.picked = 0x0000FF;
    rig.click("bc");
    EXPECT_EQ(rig.drawn(), "back 255\n");
    rig.dialogs.picked = black;
    rig.click("backc");
    rig.tick(control::statusTimer);
    EXPECT_EQ(rig.window.at("Back").backColor, 0x0000FFU);
    EXPECT_EQ(rig.outcome(), nothing);
    EXPECT_EQ(rig.window.at(control::Frame2).backColor, 0x0000FFU);
    EXPECT_EQ(rig.form.canvasBackColor, black);
    for (const Name control : {control::panel, control::Option2, control::Option3, control::Option4, control::Option5,
                               control::bat, control::sup}) {
        EXPECT_EQ(rig.window.at(control).backColor, black) << control.text();
    }
}

TEST(Confirmations, AnyOtherValueBecomesOneAndTheMarkFlipsOnItsOwn)
{
    Rig rig;
    rig.form.confirm[gatesConfirm] = 5;
    rig.click("gg");
    EXPECT_EQ(rig.form.confirm[gatesConfirm], 1);
    EXPECT_FALSE(rig.window.checked("gg"));
}

} // namespace schemlet
