#include "tests/gui/program.h"

#include <gtest/gtest.h>

namespace schemlet {

// What a screen reader finds in the running program.

namespace {

/// What only holds or explains others needs no name.
bool needsName(const Accessible& accessible)
{
    return !QStringList{"filler", "label", "panel", "separator"}.contains(accessible.role);
}

/// The names of what has this role in a window, in their order.
QString namesOf(const std::vector<Accessible>& all, const QString& window, const QString& role)
{
    QStringList names;
    for (const Accessible& accessible : all) {
        if (accessible.window == window && accessible.role == role) {
            names << accessible.name.simplified();
        }
    }
    return names.join(' ');
}

} // namespace

TEST(Program, NamesEveryControlOfAllItsWindowsAndMenus)
{
    Program program;
    const QString main = program.bus().windowInFront().name;
    for (const auto& [key, title] :
         {std::pair{"ctrl+u", "Output"}, {"F1", "Help"}, {"ctrl+a", "About Schemlet v2.0"}}) {
        program.open(key, title);
        program.activate();
    }
    program.open("r", " RESISTANCE ");
    const std::vector<Accessible> all = program.bus().everything();
    for (const Accessible& each : all) {
        EXPECT_FALSE(needsName(each) && each.name.trimmed().isEmpty()) << qPrintable(each.window + ": " + each.role);
        EXPECT_FALSE(each.parent == "Canvas" && each.name != "ToolBox") << qPrintable(each.role);
        EXPECT_NE(each.name, "Option1");
        EXPECT_NE(each.name, "•");
    }
    EXPECT_TRUE(namesOf(all, main, "push button").endsWith("New Open Save Print Help Output ToolBox Fore Back"));
    EXPECT_TRUE(namesOf(all, main, "check box").endsWith("Line Pencil Eraser Box"));
    EXPECT_EQ(namesOf(all, main, "radio button"), "Voltage Current Positive Negative");
    EXPECT_EQ(namesOf(all, main, "text"), "Value");
    EXPECT_EQ(namesOf(all, " RESISTANCE ", "text"), "Enter Value of Resistance");
    EXPECT_EQ(namesOf(all, "Output", "text"), namesOf(all, "Output", "label"));
}

TEST(Program, TellsAScreenReaderWhereThePenIsAndWhatThePanelOffers)
{
    Program program;
    const Accessible canvas = *program.find("canvas", "Canvas");
    const auto waitFor = [&](const char* description) {
        waitUntil(description, [&] { return canvas.description() == description; });
    };
    program.keys("Right Down Down");
    waitFor("Pen at 1650, 1600 twips, heading down, tool Pen");
    program.keys("ctrl+l e Left s");
    waitFor("Pen at 1650, 1600 twips, heading left, tool Line, erase mode, supply: Alt+V voltage, Alt+C current");
    for (const auto& [tool, pressed] : {std::pair{"Line", true}, {"Pencil", false}, {"Eraser", true}}) {
        EXPECT_EQ(program.find("check box", tool)->is(Accessible::checked), pressed) << tool;
    }
    program.keys("Escape e b");
    waitFor("Pen at 1650, 1600 twips, heading left, tool Line, battery: Alt+P positive, Alt+N negative");
    program.keys("Escape ctrl+n");
    program.answer("Schemlet 2.0", "n");
    program.keys("ctrl+o"); // Open is refused
    waitFor("Open works after the first arrow key. Pen at 1600, 1500 twips, no direction, press an arrow key, tool "
            "Line");
    program.waitForText("Open works after the first arrow key");
}

} // namespace schemlet
