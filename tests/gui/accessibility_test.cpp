#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// What a screen reader finds in the running program.

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
