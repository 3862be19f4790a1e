#include "shell/commands.h"

#include "canvas/dot_label.h"
#include "canvas/jumper_ground.h"
#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "canvas/run.h"
#include "circuit/output_window.h"
#include "circuit/sources.h"
#include "circuit/supply_panel.h"
#include "circuit/valued_components.h"
#include "shell/about.h"
#include "shell/colors.h"
#include "shell/confirmations.h"
#include "shell/files.h"
#include "shell/help.h"
#include "shell/repeat.h"
#include "shell/status_bar.h"
#include "shell/toolbox.h"
#include "shell/undo.h"
#include "symbols/bipolar.h"
#include "symbols/buffer_not_opamp.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"
#include "symbols/jfets.h"
#include "symbols/machines.h"
#include "symbols/thyristors.h"
#include "symbols/transformers.h"

#include <algorithm>

namespace schemlet {

namespace {

/// One row of the menu tree.
struct MenuRow {
    int depth = 0; ///< as in MainWindow::addMenuItem
    MenuItem item;
    Handler handler = nullptr; ///< null for a submenu or a separator
};

constexpr MenuItem separator{{}, "-"};

/// The item that turns a family's question on and off.
template <Confirm family> constexpr MenuRow question(std::string_view caption)
{
    return {1, {confirmItems[family], caption, "", Look::checked}, toggleConfirm<family>};
}

// The whole tree in its visible order. The blanks and misspellings of the captions are intended.
// clang-format off
constexpr MenuRow menu[] = {
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
        {1, {item::lll, "&ToolBar", "Ctrl+H", Look::checked}, lll}, {1, separator},
        {1, {item::sss, "&StatusBar", "Ctrl+K", Look::checked}, sss}, {1, separator},
        {1, {item::toolbox, "&ToolBox", "Ctrl+T", Look::checked}, toolbox}, {1, separator},
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
        question<motorsConfirm>("&Motors"), {1, separator},
        question<generatorsConfirm>("&Generators"), {1, separator},
        question<transformersConfirm>("&Transformers"), {1, separator},
        question<armatureConfirm>("&Armature"), {1, separator},
        question<fieldConfirm>("&Field"), {1, separator},
        question<npnConfirm>("&NPN Transistors"), {1, separator},
        question<pnpConfirm>("&PNP Transistors"), {1, separator},
        question<jfetConfirm>("&JEFT Transistors"), {1, separator},
        question<thyristorsConfirm>("T&hyristors"), {1, separator},
        question<gatesConfirm>("&Gates"), {1, separator},
        question<diodesConfirm>("&Diodes"), {1, separator},
        question<bufferConfirm>("&Buffer"), {1, separator},
        question<opampConfirm>("&OP - AMP"), {1, separator},
    {0, {"ae", " &Enable "}},
        {1, {item::jj, "Automatic Jumper", "", Look::unchecked}, jj},
    {0, {"help", " &Help "}},
        {1, {"htu", "H&ow to use", "F1"}, htu}, {1, separator},
        {1, {"about", "&About", "Ctrl+A"}, about},
};
// clang-format on

/// Draws the toolbox picture of a symbol, a component or a source, with the pen at (x, y) twips.
template <const auto& component, int x, int y> void sketch(Surface& surface)
{
    Pen pen{x, y, heading::right};
    draw(surface, pen, component.branches, "10");
}

constexpr ToolButton toolbar[] = {
    {"New", "New (Ctrl+N)", " Click to start a new drawing ", new_},
    {"Open", "Open (Ctrl+O)", " Click to open a picture as the drawing's background ", open},
    {"Save", "Save (Ctrl+S)", " Click to save the drawing as a picture ", save},
    {"Print", "Print (Ctrl+P)", " Click to print the drawing ", print},
    {},
    {"Help", "How to use (F1)", " Click to see how to use the program ", htu},
    {"Output", "Output (Ctrl+U)", " Click to see the totals and what follows from them ", output},
    {"ToolBox", "ToolBox (Ctrl+T)", " Click to show or hide the toolbox ", toolBoxButton},
    {},
    {"Line", "Line (Ctrl+L)", " Click to draw lines with the mouse ", linee, &CanvasState::lineTool},
    {"Pencil", "Pencil (Ctrl+C)", " Click to draw free-hand with the mouse ", pencil1, &CanvasState::pencilTool},
    {"Fore", "Fore Color (Ctrl+F)", " Click to choose the color of wires ", forec, nullptr, &CanvasState::wireColor},
    {"Back", "Back Color (Ctrl+B)", " Click to choose the color of the canvas, which wipes it ", bc, nullptr,
     &CanvasState::paperColor},
    {"Eraser", "Eraser (Ctrl+E)", " Click to switch erase mode on or off ", eraser1, &CanvasState::eraseMode},
    {"Box", "Rectangle (Ctrl+R)", " Click to draw rectangles with the mouse ", rectan, &CanvasState::rectTool},
};

constexpr ToolPicture pictures[] = {
    {"Image1", " Click to draw AND Gate ", and_, sketch<andGate, 380, 260>},
    {"Image2", " Click to draw OR Gate ", or_, sketch<orGate, 380, 260>},
    {"Image3", " Click to draw NOT Gate ", notgate, sketch<notGate, 360, 280>},
    {"Image4", " Click to draw NOR Gate ", nor, sketch<norGate, 380, 260>},
    {"Image5", " Click to draw NAND Gate ", nand, sketch<nandGate, 350, 260>},
    {"Image15", " Click to draw RESISTANCE", resistanc, sketch<resistor, 20, 150>},
    {"Image16", " Click to draw INDUCTANCE ", inductanc, sketch<inductor, 90, 190>},
    {"Image17", " Click to draw CAPACITANCE ", capacitanc, sketch<capacitor, 470, 205>},
    {"Image18", " Click to draw SUPPLY", suppl, sketch<voltageSupply, 340, 300>},
    {"Image19", " Click to draw BATTERY", batter, sketch<negativeBattery, 500, 460>},
    {"Image20", " Click to get ERASER", eraserPicture},
    {"Image7", " Click to Close the ToolBox ", toolbox},
};

/// A command that is in no menu.
struct KeyCommand {
    Name name; ///< also of the command's button, if there is one
    std::string_view keys;
    Handler handler;
    std::string_view step{}; ///< the name of the step that it makes
    bool repeats = false;    ///< while its key is held
};

constexpr KeyCommand keyCommands[] = {
    {control::undo, "Ctrl+Z", undo, {}, true},
    {control::redo, "Ctrl+Shift+Z; Ctrl+Y", redo, {}, true},
    {control::copy, "Ctrl+Ins; Ctrl+Shift+C", copyDrawing},
    {"runRight", "Ctrl+Right", run<heading::right>, "wire"},
    {"runLeft", "Ctrl+Left", run<heading::left>, "wire"},
    {"runUp", "Ctrl+Up", run<heading::up>, "wire"},
    {"runDown", "Ctrl+Down", run<heading::down>, "wire"},
    {"turnRight", "Alt+Right", turn<heading::right>},
    {"turnLeft", "Alt+Left", turn<heading::left>},
    {"turnUp", "Alt+Up", turn<heading::up>},
    {"turnDown", "Alt+Down", turn<heading::down>},
    {"repeat", "F4", repeat},
    {"label", "F2", label, "label"},
    {"dot", "Ctrl+D", dot, "junction dot"},
};

struct Letter {
    char capital;
    Handler handler;
};

constexpr Letter letters[] = {{'R', resistanc}, {'J', toggleAutoJumper}, {'S', suppl},  {'B', batter},
                              {'I', inductanc}, {'C', capacitanc},       {'E', eraser1}};

/// Buttons, labels, and the panel of sources itself: Esc is a click on it.
constexpr NamedHandler controls[] = {
    {mainWindow, control::Option2, Option2},
    {mainWindow, control::Option3, Option3},
    {mainWindow, control::Option4, Option4},
    {mainWindow, control::Option5, Option5},
    {mainWindow, control::Command3, Command3},
    {mainWindow, control::Command7, Command7},
    {mainWindow, control::Command8, Command8},
    {mainWindow, control::panel, cancelPanel},
    {mainWindow, control::Label1, Label1},
    {form2::window, form2::control::Check1, form2::Check1},
    {form2::window, form2::control::Label23, form2::Label23},
    {form2::window, form2::control::Command1, form2::Command1},
    {form3::window, form3::control::Command1, form3::Command1},
    {form3::window, form3::control::Command2, form3::Command1},
    {form4::window, form4::control::print, form4::printForm},
};

template <typename Row, std::size_t count> Handler handlerIn(const Row (&rows)[count], std::string_view name)
{
    const auto* const row = std::ranges::find(rows, name, [](const Row& each) { return each.name.text(); });
    return row != std::end(rows) ? row->handler : nullptr;
}

/// The handler of a menu item, of a button of the toolbar or the status bar, or of a toolbox picture. Null if none has
/// this name.
Handler handlerOf(std::string_view name)
{
    for (const MenuRow& row : menu) {
        if (row.item.name.text() == name) {
            return row.handler;
        }
    }
    for (const Handler handler : {handlerIn(toolbar, name), handlerIn(pictures, name), handlerIn(keyCommands, name)}) {
        if (handler != nullptr) {
            return handler;
        }
    }
    return nullptr;
}

Handler handlerOf(int character)
{
    const int capital = character >= 'a' && character <= 'z' ? character - 'a' + 'A' : character;
    const auto* const letter = std::ranges::find(letters, capital, &Letter::capital);
    return letter != std::end(letters) ? letter->handler : nullptr;
}

/// Whether a command places something: it is in one of the two menus of components, or it is ground or jumper.
bool isComponent(Handler command)
{
    bool inMenu = false;
    for (const MenuRow& row : menu) {
        if (row.depth == 0) {
            inMenu = row.item.name == Name("electricalcomponents") || row.item.name == Name("electroniccomponets");
        }
        if (row.handler == command) {
            return inMenu || command == ground || command == jumper;
        }
    }
    return false;
}

void call(Form1& form, Handler command)
{
    if (isComponent(command)) {
        form.lastComponent = command; // even if it is refused
    }
    command(form);
}

} // namespace

std::span<const ToolButton> toolbarButtons()
{
    return toolbar;
}

std::span<const ToolPicture> toolboxPictures()
{
    return pictures;
}

void addMenus(Form1& form)
{
    for (const MenuRow& row : menu) {
        form.window.addMenuItem(row.depth, row.item);
    }
    for (const KeyCommand& command : keyCommands) {
        form.window.addShortcut({command.name, command.keys, command.repeats});
    }
}

Handler commandOf(const Event& event)
{
    return event.kind == Event::Kind::keyPress ? handlerOf(event.code) : handlerOf(event.name);
}

std::string captionOf(Handler command)
{
    if (const auto* const row = std::ranges::find(keyCommands, command, &KeyCommand::handler);
        row != std::end(keyCommands)) {
        return std::string(row->step);
    }
    const auto* const row = std::ranges::find(menu, command, &MenuRow::handler);
    if (row == std::end(menu)) {
        return {};
    }
    std::string caption(row->item.caption);
    std::erase(caption, '&');
    return caption;
}

void runRow(Form1& form, std::span<const NamedHandler> rows, std::string_view window, std::string_view name)
{
    const auto row = std::ranges::find_if(
        rows, [&](const NamedHandler& each) { return each.window.text() == window && each.name.text() == name; });
    if (row != rows.end()) {
        row->handler(form);
    }
}

void runCommand(Form1& form, std::string_view window, std::string_view name)
{
    runRow(form, controls, window, name);
    if (const Handler handler = handlerOf(name); handler != nullptr && window == mainWindow.text()) {
        call(form, handler);
    }
}

void keyPress(Form1& form, int character)
{
    form.savedMark = 0;
    if (const Handler handler = handlerOf(character); handler != nullptr) {
        call(form, handler);
    }
}

} // namespace schemlet
