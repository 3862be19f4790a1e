#include "tests/gui/program.h"

#include <csignal>
#include <gtest/gtest.h>

namespace schemlet {

// Windows and menus as they come and go on a real screen, and what a screen reader finds in them.

TEST(Program, SplashMakesWayForTheMainWindowAndHelpThatLeavesTheKeyboardAndSlidesOpenByKeyAndMouse)
{
    Program program(Program::Stage::splash);
    program.waitForHelp();
    EXPECT_FALSE(program.isOpen("Schemlet 2.0"));
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    program.keys("Right Right Right");
    waitUntil("wire", [&] { return program.inked(114, 100); });

    const auto waitForKeys = [&](bool open) {
        waitUntil("the height", [&] { return program.placeOf("dialog", "Help").height() == (open ? 337 : 214); });
    };
    program.open("F1", "Help");
    waitForKeys(false);
    const QRect help = program.onCanvas(program.placeOf("dialog", "Help"));
    EXPECT_FALSE(help.intersects(toolbox) || help.intersects({106, 60, 600, 80})) << help.x() << ' ' << help.y();
    program.keys("space");
    waitForKeys(true);
    program.hoverOver("label", "Show Shortcut Keys");
    program.xdotool("click 3 mousedown 1 mousemove_relative 0 60 mouseup 1");
    program.clickOn("label", "Show Shortcut Keys"); // only this one counts
    waitForKeys(false);
    program.keys("space");
    waitForKeys(true);
    EXPECT_TRUE(Program::close("Help"));
    program.waitForMainWindow();
    for (const char* const closing : {"Escape", "alt+c", "Return"}) {
        EXPECT_FALSE(program.isOpen("Help"));
        program.open("F1", "Help");
        waitForKeys(true); // as it was left
        program.answer("Help", closing);
    }
}

TEST(Program, EndsWithItsMainWindowWhateverElseIsOpen)
{
    Program program;
    program.open("F1", "Help");
    program.activate();
    for (const char* const button : {"Return", "alt+o", "alt+c", "Escape"}) {
        program.keys("ctrl+a");
        program.answer("About Schemlet v2.0", button);
    }
    program.open("ctrl+a", "About Schemlet v2.0");
    EXPECT_TRUE(Program::close(" - Schemlet 2.0"));
    program.waitForWindow("Schemlet 2.0");
    program.keys("n");
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, SignalsEndItWhateverIsOpenAndNothingIsLeftAtHome)
{
    for (const auto& [signal, key, window] : {std::tuple{SIGTERM, "ctrl+s", "Save"},
                                              {SIGINT, "ctrl+f", "Color of wires"},
                                              {SIGHUP, "ctrl+x", "Schemlet 2.0"}}) {
        SCOPED_TRACE(signal);
        Program program;
        program.keys("ctrl+f");
        program.answer("Color of wires", "Return");
        program.open(key, window);
        EXPECT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.filesAtHome(), QStringList());
    }
}

TEST(Program, MenusOpenByKeyboardAndByMouseAndShortCutsWork)
{
    struct Way {
        const char* keys = nullptr;
        const char* window = nullptr;
        QStringList clicks{};   // on these menu items
        const char* text = "*"; // in it
    };
    const Way ways[] = {
        {"alt+f p", "Schemlet 2.0", {"File", "Print"}, "Do you want to print this form?"},
        {"alt+f Right Right Up Return", "Output", {"View", "Output"}},
        {"alt+f Right Right Right m Down Return", "This draws a DC MOTOR"},
        {"alt+l h d", "This draws a DIAC THYRISTOR", {"Electronic Components", "Thyristors", "DIAC"}},
        {"alt+f Left Left Left Left Left Return", "Color of resistances", {"Components Color", "Resistance"}},
        {"alt+f Left Left Left Left Down Return",
         "Canvas color: wipes the drawing, Cancel too",
         {"Form Color", "Backcolor"}},
        {"alt+f Left o", "Help", {"Help", "How to use"}},
        {"F1", "Help"},
        {"ctrl+x", "Schemlet 2.0", {}, "Do you want to save changes?"},
        {"ctrl+q", "Schemlet 2.0", {}, "Do you want to save changes?"},
        {"Menu h", "Help"},
        {"shift+F10 f", "Color of wires"},
    };
    Program program;
    for (const auto& [keys, window, clicks, text] : ways) {
        SCOPED_TRACE(keys);
        program.open(keys, window);
        program.waitForText(text);
        program.answer(window, "Escape");
        if (!clicks.isEmpty()) {
            program.clickMenus(clicks);
            program.answer(window, "Escape");
        }
    }
    program.clickMenus({"Edit", "Eraser"});
    program.waitForText("Erase mode");
    EXPECT_FALSE(program.shows("menu item", "Rightclick")); // it opens at the mouse or the pen instead
    program.click(3, 300, 300);
    program.clickMenus({"Line"});
    program.waitForText("Line");
    program.click(1, 300, 300);
    program.keys("Menu");
    EXPECT_TRUE(QRect(300, 300, 10, 10).contains(program.onCanvas(program.placeOf("menu item", "Eraser")).topLeft()));
}

TEST(Program, ToolboxHintsAtItsButtonsAndFollowsTheMouse)
{
    Program program;
    program.hoverOver("push button", "AND Gate");
    program.waitForText("Click to draw AND Gate");
    program.clickOn("push button", "AND Gate");
    program.answer("This draws an AND GATE", "Escape");

    const auto corner = [&] { return program.onCanvas(program.placeOf("panel", "ToolBox")).topLeft(); };
    program.clickOn("label", "Click once and drag");
    for (const int place : {300, 200}) {
        program.moveMouse(place, place);
        waitUntil("the toolbox", [&] { return corner() == QPoint(place, place); });
    }
    program.moveMouse(202, 202); // which is over it now, and stops it
    program.moveMouse(100, 500);
    program.waitForText("Press F1 for Help");
    EXPECT_EQ(corner(), QPoint(200, 200));

    program.click(1, 190, 250);
    const QRect toolbox = program.onCanvas(program.placeOf("panel", "ToolBox"));
    const QImage before = program.canvas().copy(toolbox);
    program.keys("Right", 20);
    waitUntil("wire up to the toolbox", [&] { return program.inked(198, 250); });
    EXPECT_TRUE(program.canvas().copy(toolbox) == before) << "ink was seen on the toolbox";
}

TEST(Program, TellsAScreenReaderTheNameOfEveryControlAndWhatItSays)
{
    Program program;
    for (const auto& [key, title] :
         {std::pair{"ctrl+u", "Output"}, {"F1", "Help"}, {"ctrl+a", "About Schemlet v2.0"}}) {
        program.open(key, title);
        program.activate();
    }
    program.open("r", "RESISTANCE");
    const QStringList nameless{"filler", "label", "panel", "separator"}; // these hold or explain others
    QMap<QString, QString> names; // of what has a role in a window, in their order
    for (const Accessible& window : program.bus().windows()) {
        for (const Accessible& each : window.contents(true)) {
            const QString place = window.name() + ": " + each.role();
            const QString name = each.name();
            names[place] += name + ' ';
            EXPECT_FALSE(name.isEmpty() && !nameless.contains(each.role())) << place.toStdString();
            EXPECT_FALSE(name == "Option1" || name == "•") << place.toStdString();
        }
    }
    const QString main = "- Schemlet 2.0 New File: ";
    EXPECT_TRUE(names[main + "push button"].endsWith("New Open Save Print Help Output ToolBox Fore Back "));
    EXPECT_TRUE(names[main + "check box"].endsWith("Line Pencil Eraser Box "));
    EXPECT_EQ(names[main + "radio button"], "Voltage Current Positive Negative ");
    EXPECT_EQ(names[main + "text"], "Value ");
    EXPECT_EQ(names["RESISTANCE: text"], "Enter Value of Resistance ");
    EXPECT_EQ(names["Output: text"], names["Output: label"]);
    program.answer("RESISTANCE", "Escape");

    const Accessible canvas = *program.find("canvas", "Canvas");
    for (const Accessible& each : canvas.children()) {
        EXPECT_EQ(each.name(), "ToolBox");
    }
    program.keys("Right Down Down ctrl+l e Left s");
    waitUntil("the canvas's description", [&] {
        return canvas.description() ==
               "Pen at 1650, 1600 twips, heading left, tool Line, erase mode, supply: Alt+V voltage, Alt+C current";
    });
    for (const auto& [tool, pressed] : {std::pair{"Line", true}, {"Pencil", false}, {"Eraser", true}}) {
        EXPECT_EQ(program.find("check box", tool)->is(Accessible::checked), pressed) << tool;
    }
    program.keys("Escape ctrl+n");
    program.answer("Schemlet 2.0", "n");
    program.keys("ctrl+o"); // Open is refused
    program.waitForText("Open works after the first arrow key");
}

} // namespace schemlet
