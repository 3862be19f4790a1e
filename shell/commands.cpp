#include "shell/commands.h"

#include "canvas/jumper_ground.h"
#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "circuit/output_window.h"
#include "circuit/supply_panel.h"
#include "circuit/valued_components.h"
#include "shell/about.h"
#include "shell/colors.h"
#include "shell/confirmations.h"
#include "shell/files.h"
#include "shell/help.h"
#include "shell/status_bar.h"
#include "shell/toolbox.h"
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
    {0, {"file", "  &File  "}},
        {1, {"new", "&New", "Ctrl+N"}, new_}, {1, separator},
        {1, {"open", "&Open", "Ctrl+O"}, open}, {1, separator},
        {1, {"save", "Sa&ve", "Ctrl+S"}, save}, {1, separator},
        {1, {"print", "&Print", "Ctrl+P"}, print}, {1, separator},
        {1, {"exit", "E&xit", "Ctrl+X; Ctrl+Q"}, exit_},
    {0, {"edit", " &Edit "}},
        {1, {"eraser", "&Eraser", "Ctrl+E"}, eraser}, {1, separator},
        {1, {"pencil1", "&Pencil", "Ctrl+C"}, pencil1}, {1, separator},
        {1, {"rectan", "&Rectangle", "Ctrl+R"}, rectan}, {1, separator},
        {1, {"linee", "&Line", "Ctrl+L"}, linee}, {1, separator},
        {1, {"ground", "&Ground", "Ctrl+G"}, ground}, {1, separator},
        {1, {"jumper", "Jumper", "Ctrl+J"}, jumper},
    {0, {"view", " &View "}},
        {1, {"lll", "&ToolBar", "Ctrl+H", Look::checked}, lll}, {1, separator},
        {1, {"sss", "&StatusBar", "Ctrl+K", Look::checked}, sss}, {1, separator},
        {1, {"toolbox", "&ToolBox", "Ctrl+T", Look::checked}, toolbox}, {1, separator},
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
    {0, {"cc", " Components Color "}},
        {1, {"resistancecolor", "Resistance"}, pickColor<colored::resistances>},
        {1, {"inductancecolor", "Inductance"}, pickColor<colored::inductances>},
        {1, {"capacitancecolor", "Capacitance"}, pickColor<colored::capacitances>},
        {1, {"batterycolor", "Battery"}, batterycolor},
        {1, {"motorcolor", "Motors"}, pickColor<colored::motors>},
        {1, {"generatorcolor", "Generators"}, pickColor<colored::generators>},
        {1, {"transformercolor", "Transformers"}, pickColor<colored::transformers>},
        {1, {"ar", "Armature"}, pickColor<colored::armatures>},
        {1, {"field1", "Field"}, pickColor<colored::fields>},
        {1, {"transistorcolor", "&Transistors"}, pickColor<colored::transformers>},
        {1, {"Thyristorscolor", "Thyristors"}, Thyristorscolor},
        {1, {"gatescolor", "Gates"}, pickColor<colored::gates>},
        {1, {"diodescolor", "Diodes"}, pickColor<colored::diodes>},
        {1, {"buffercolor", "&Buffer"}, pickColor<colored::buffers>},
        {1, {"opampcolor", "Op-Amplifier"}, pickColor<colored::opamps>},
    {0, {"fc", " Form Color "}},
        {1, {"forec", "Forecolor", "Ctrl+F"}, forec}, {1, {"fd", "-"}},
        {1, {"bc", "Backcolor", "Ctrl+B"}, bc},
    {0, {control::rc, "&Rightclick", "", Look::hidden}, popUpAtPen},
        {1, {"eras", "&Eraser"}, eraser}, {1, separator},
        {1, {"penc", "&Pencil"}, pencil1},
        {1, {"rectang", "&Rectangle"}, rectan},
        {1, {"lineee", "&Line"}, linee}, {1, separator},
        {1, {"foreco", "&Fore Color"}, forec},
        {1, {"backc", "&Back Color"}, bc}, {1, separator},
        {1, {"hheellpp", "&Help"}, htu},
    {0, {"askc", " &Ask Confirmation"}},
        {1, {"m", "&Motors", "", Look::checked}, toggleConfirm<motorsConfirm>}, {1, separator},
        {1, {"g", "&Generators", "", Look::checked}, toggleConfirm<generatorsConfirm>}, {1, separator},
        {1, {"tr", "&Transformers", "", Look::checked}, toggleConfirm<transformersConfirm>}, {1, separator},
        {1, {"aar", "&Armature", "", Look::checked}, toggleConfirm<armatureConfirm>}, {1, separator},
        {1, {"f", "&Field", "", Look::checked}, toggleConfirm<fieldConfirm>}, {1, separator},
        {1, {"npnt", "&NPN Transistors", "", Look::checked}, toggleConfirm<npnConfirm>}, {1, separator},
        {1, {"pnpt", "&PNP Transistors", "", Look::checked}, toggleConfirm<pnpConfirm>}, {1, separator},
        {1, {"jfett", "&JEFT Transistors", "", Look::checked}, toggleConfirm<jfetConfirm>}, {1, separator},
        {1, {"thy", "T&hyristors", "", Look::checked}, toggleConfirm<thyristorsConfirm>}, {1, separator},
        {1, {"gg", "&Gates", "", Look::checked}, toggleConfirm<gatesConfirm>}, {1, separator},
        {1, {"dii", "&Diodes", "", Look::checked}, toggleConfirm<diodesConfirm>}, {1, separator},
        {1, {"buffer1", "&Buffer", "", Look::checked}, toggleConfirm<bufferConfirm>}, {1, separator},
        {1, {"opamp1", "&OP - AMP", "", Look::checked}, toggleConfirm<opampConfirm>}, {1, separator},
    {0, {"ae", " &Enable "}},
        {1, {"jj", "Automatic Jumper", "", Look::unchecked}, jj},
    {0, {"help", " &Help "}},
        {1, {"htu", "H&ow to use", "F1"}, htu}, {1, separator},
        {1, {"about", "&About", "Ctrl+A"}, about},
};
// clang-format on

constexpr NamedHandler controls[] = {
    {mainWindow, control::Option2, Option2},
    {mainWindow, control::Option3, Option3},
    {mainWindow, control::Option4, Option4},
    {mainWindow, control::Option5, Option5},
    {mainWindow, control::Command3, Command3},
    {mainWindow, control::Command7, Command7},
    {mainWindow, control::Command8, Command8},
    {mainWindow, control::Label1, Label1},
    {form2::window, form2::control::Check1, form2::Check1},
    {form2::window, form2::control::Label23, form2::Label23},
    {form2::window, form2::control::Command1, form2::Command1},
    {form3::window, form3::control::Command1, form3::Command1},
    {form3::window, form3::control::Command2, form3::Command1},
    {form4::window, form4::control::print, form4::printForm},
};

Handler handlerOf(Name window, Name name)
{
    if (const Handler handler = findHandler(controls, window, name)) {
        return handler;
    }
    if (window != mainWindow) {
        return nullptr;
    }
    const auto* const item = std::ranges::find(menu, name, [](const Command& row) { return row.item.name; });
    return item != std::end(menu) ? item->handler : toolHandler(name);
}

} // namespace

Handler findHandler(std::span<const NamedHandler> rows, Name window, Name name)
{
    const auto found =
        std::ranges::find_if(rows, [&](const NamedHandler& row) { return row.window == window && row.name == name; });
    return found == rows.end() ? nullptr : found->handler;
}

void addMenus(Form1& form)
{
    for (const Command& command : menu) {
        form.controls.addMenuItem(command.depth, command.item);
    }
}

void runCommand(Form1& form, Name window, Name name)
{
    if (const Handler handler = handlerOf(window, name)) {
        handler(form);
    }
}
