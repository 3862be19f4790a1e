#include "shell/commands.h"

#include "canvas/jumper_ground.h"
#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "symbols/gates.h"

#include <algorithm>

namespace {

constexpr MenuItem separator{"", "-"};

// The whole tree in its visible order. Blanks and spellings of the captions are the product's own.
// clang-format off
constexpr Command menu[] = {
    {0, {"edit", " &Edit "}},
        {1, {"eraser", "&Eraser", "Ctrl+E"}, eraser}, {1, separator},
        {1, {"pencil1", "&Pencil", "Ctrl+C"}, pencil1}, {1, separator},
        {1, {"rectan", "&Rectangle", "Ctrl+R"}, rectan}, {1, separator},
        {1, {"linee", "&Line", "Ctrl+L"}, linee}, {1, separator},
        {1, {"ground", "&Ground", "Ctrl+G"}, ground}, {1, separator},
        {1, {"jumper", "Jumper", "Ctrl+J"}, jumper},
    {0, {"electroniccomponets", " E&lectronic Components "}},
        {1, {"gates", "&Gates"}},
            {2, {"and", "&AND Gate"}, and_}, {2, separator},
            {2, {"or", "&OR Gate"}, or_}, {2, separator},
            {2, {"nor", "NO&R Gate"}, nor}, {2, separator},
            {2, {"nand", "N&AND Gate"}, nand}, {2, separator},
            {2, {"exor", "EX - &OR Gate"}, exor}, {2, separator},
            {2, {"exnor", "EX - &NOR Gate"}, exnor},
    {0, {control::rc, "&Rightclick", "", Look::hidden}},
        {1, {"eras", "&Eraser"}, eraser}, {1, separator},
        {1, {"penc", "&Pencil"}, pencil1},
        {1, {"rectang", "&Rectangle"}, rectan},
        {1, {"lineee", "&Line"}, linee},
    {0, {"ae", " &Enable "}},
        {1, {"jj", "Automatic Jumper", "", Look::unchecked}, jj},
};
// clang-format on

} // namespace

void addMenus(Form1& form)
{
    for (const Command& command : menu) {
        form.controls.addMenuItem(command.depth, command.item);
    }
}

void runCommand(Form1& form, Name item)
{
    const auto* const command = std::ranges::find(menu, item, [](const Command& row) { return row.item.name; });
    if (command != std::end(menu) && command->handler != nullptr) {
        command->handler(form);
    }
}
