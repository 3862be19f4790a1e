#include "tests/gui/accessible_tree.h"
#include "tests/gui/desk.h"

#include <algorithm>
#include <gtest/gtest.h>

// What a screen reader finds in the running program.

namespace {

/// What only holds or explains others needs no name.
bool needsName(const Accessible& accessible)
{
    return !QStringList{"filler", "label", "panel", "separator"}.contains(accessible.role);
}

/// The only canvas, once the program has told of it.
Accessible canvasOf(const AccessibilityBus& bus)
{
    std::vector<Accessible> found;
    waitUntil("a canvas", [&] {
        found = bus.everything();
        std::erase_if(found, [](const Accessible& each) { return each.role != "canvas"; });
        return !found.empty();
    });
    EXPECT_EQ(found.size(), 1U);
    return found.front();
}

/// The names of what has this role in a window, in their order.
QStringList namesOf(const std::vector<Accessible>& all, const QString& window, const QString& role)
{
    QStringList names;
    for (const Accessible& accessible : all) {
        if (accessible.window == window && accessible.role == role) {
            names << accessible.name.simplified();
        }
    }
    return names;
}

} // namespace

TEST(Program, NamesEveryControlOfAllItsWindowsAndMenus)
{
    const AccessibilityBus bus;
    Program program;
    const QString main = canvasOf(bus).window;
    for (const auto& [key, title] :
         {std::pair{"ctrl+u", "Output"}, {"F1", "Help"}, {"ctrl+a", "About Schemlet v2.0"}}) {
        program.keys({key});
        program.waitForWindow(title);
        program.activate();
    }
    program.keys({"r"});
    program.waitForWindow(" RESISTANCE ");
    const std::vector<Accessible> all = bus.everything();

    const auto controls = std::ranges::count_if(all, needsName);
    const auto named = std::ranges::count_if(
        all, [](const Accessible& each) { return needsName(each) && !each.name.trimmed().isEmpty(); });
    RecordProperty("controls", static_cast<int>(controls));
    EXPECT_GT(controls, 190);
    EXPECT_EQ(named, controls);
    for (const Accessible& each : all) {
        EXPECT_FALSE(needsName(each) && each.name.trimmed().isEmpty()) << qPrintable(each.window + ": " + each.role);
        EXPECT_NE(each.name, "Option1");
        EXPECT_NE(each.name, "•");
    }
    const QString tools = "New Open Save Print Help Output ToolBox Line Pencil Fore Back Eraser Box";
    EXPECT_TRUE(namesOf(all, main, "push button").join(' ').endsWith(tools));
    EXPECT_EQ(namesOf(all, main, "radio button").join(' '), "Voltage Current Positive Negative");
    EXPECT_EQ(namesOf(all, main, "text").join(' '), "Value");
    EXPECT_EQ(namesOf(all, " RESISTANCE ", "text").join(' '), "Enter Value of Resistance");
    QStringList captions = namesOf(all, "Output", "label");
    captions[0] += " " + captions.takeAt(1); // the unit stands in a label of its own
    EXPECT_EQ(namesOf(all, "Output", "text"), captions);
}

TEST(Program, TellsAScreenReaderWhereThePenIs)
{
    const AccessibilityBus bus;
    Program program;
    const Accessible canvas = canvasOf(bus);
    EXPECT_EQ(canvas.name, "Canvas");
    const auto waitFor = [&](const char* description) {
        waitUntil(description, [&] { return bus.description(canvas) == description; });
    };
    waitFor("Pen at 1600, 1500 twips, heading right, tool Pen");
    program.keys({"Right", "Down", "Down"});
    waitFor("Pen at 1650, 1600 twips, heading down, tool Pen");
    program.keys({"ctrl+l", "e", "Left"});
    waitFor("Pen at 1650, 1600 twips, heading left, tool Line, erase mode");
}
