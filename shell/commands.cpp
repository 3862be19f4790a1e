#include "shell/commands.h"

#include "canvas/jumper_ground.h"
#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "circuit/output_window.h"
#include "circuit/supply_panel.h"
#include "circuit/valued_components.h"
#include "symbols/bipolar.h"
#include "symbols/buffer_not_opamp.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"
#include "symbols/jfets.h"
#include "symbols/machines.h"
#include "symbols/thyristors.h"
#include "symbols/transformers.h"

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
    {0, {"view", " &View "}},
        {1, {"output", "&Output", "Ctrl+U"}, output},
    {0, {"electricalcomponents", " &Electrical Components "}},
        {1, {"resistance", "&Resistance"}, resistanc}, {1, separator},
        {1, {"inductance", "&Inductance"}, inductanc}, {1, separator},
        {1, {"capacitance", "&Capacitance"}, capacitanc}, {1, separator},
        {1, {"supply", "&Supply"}, suppl}, {1, separator},
        {1, {"battery", "&Battery"}, batter}, {1, separator},
        {1, {"motor", "&Motors"}},
            {2, {"acmotor", "&A.C Motor"}, acmotor}, {2, separator},
            {2, {"dcmotor", "&D.C Motor"}, dcmotor}, {1, separator},
        {1, {"generator", "&Generators"}},
            {2, {"acgenerator", "&A.C Generator"}, acgenerator}, {2, separator},
            {2, {"dcgenerator", "&D.C Ggenerator"}, dcgenerator}, {1, separator},
        {1, {"transformer", "&Transformer"}},
            {2, {"singlephase", "&Single Phase"}, singlephase}, {2, separator},
            {2, {"centertapped", "&Center Tapped"}, centertapped}, {1, separator},
        {1, {"armature", "&Armature"}, armature}, {1, separator},
        {1, {"field", "&Field"}, field},
    {0, {"electroniccomponets", " E&lectronic Components "}},
        {1, {"npn", "&NPN Transistors"}},
            {2, {"emitter", "Common &Emitter"}, emitter}, {2, separator},
            {2, {"base", "Common &Base"}, base}, {2, separator},
            {2, {"collector", "Common &Collector"}, collector}, {1, separator},
        {1, {"pnp", "&PNP Transistors"}},
            {2, {"emitter1", "Common &Emitter"}, emitter1}, {2, separator},
            {2, {"base1", "Common &Base"}, base1}, {2, separator},
            {2, {"collector1", "Common &Collector"}, collector1}, {1, separator},
        {1, {"jfet", "&JFET Transistors"}},
            {2, {"nchannel", "&N Channel"}, nchannel}, {2, separator},
            {2, {"pchannel", "&P Channel"}, pchannel}, {1, separator},
        {1, {"Thyristors", "T&hyristors"}},
            {2, {"SCR", "&SCR"}, SCR}, {2, separator},
            {2, {"TRIAC", "&TRIAC"}, TRIAC}, {2, separator},
            {2, {"DIAC", "&DIAC"}, DIAC}, {2, separator},
            {2, {"UJT", "&UJT"}, UJT}, {1, separator},
        {1, {"gates", "&Gates"}},
            {2, {"and", "&AND Gate"}, and_}, {2, separator},
            {2, {"or", "&OR Gate"}, or_}, {2, separator},
            {2, {"not", "&NOT Gate"}, notgate}, {2, separator},
            {2, {"nor", "NO&R Gate"}, nor}, {2, separator},
            {2, {"nand", "N&AND Gate"}, nand}, {2, separator},
            {2, {"exor", "EX - &OR Gate"}, exor}, {2, separator},
            {2, {"exnor", "EX - &NOR Gate"}, exnor}, {1, separator},
        {1, {"diodes", "&Diodes"}},
            {2, {"diode", "&Zener Diode"}, diode}, {2, separator},
            {2, {"pndoide", "&PN Diode"}, diod}, {2, separator},
            {2, {"npdiode", "&NP Diode"}, npdiode}, {2, separator},
            {2, {"tunneldiode", "&Tunnel Diode"}, tunneldiode}, {1, separator},
        {1, {"buffering", "&Buffer"}, buffer}, {1, separator},
        {1, {"opamp", "&Op - Amplifier"}, opamp},
    {0, {control::rc, "&Rightclick", "", Look::hidden}},
        {1, {"eras", "&Eraser"}, eraser}, {1, separator},
        {1, {"penc", "&Pencil"}, pencil1},
        {1, {"rectang", "&Rectangle"}, rectan},
        {1, {"lineee", "&Line"}, linee},
    {0, {"ae", " &Enable "}},
        {1, {"jj", "Automatic Jumper", "", Look::unchecked}, jj},
};
// clang-format on

struct Clickable {
    Name window;
    Name name;
    Handler handler;
};

constexpr Clickable controls[] = {
    {mainWindow, control::Option2, Option2},   {mainWindow, control::Option3, Option3},
    {mainWindow, control::Option4, Option4},   {mainWindow, control::Option5, Option5},
    {mainWindow, control::Command3, Command3}, {mainWindow, control::Command7, Command7},
    {mainWindow, control::Command8, Command8}, {form4::window, form4::print, form4::printForm},
};

} // namespace

void addMenus(Form1& form)
{
    for (const Command& command : menu) {
        form.controls.addMenuItem(command.depth, command.item);
    }
}

void runCommand(Form1& form, Name window, Name name)
{
    const auto* const control =
        std::ranges::find_if(controls, [&](const Clickable& row) { return row.window == window && row.name == name; });
    if (control != std::end(controls)) {
        return control->handler(form);
    }
    const auto* const command = std::ranges::find(menu, name, [](const Command& row) { return row.item.name; });
    if (window == mainWindow && command != std::end(menu) && command->handler != nullptr) {
        command->handler(form);
    }
}
