#include "shell/toolbox.h"

#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "circuit/output_window.h"
#include "circuit/sources.h"
#include "circuit/supply_panel.h"
#include "circuit/valued_components.h"
#include "shell/colors.h"
#include "shell/files.h"
#include "shell/help.h"
#include "symbols/buffer_not_opamp.h"
#include "symbols/gates.h"

#include <algorithm>
#include <span>

namespace {

/// Unlike the menu's command it flips the mark on its own.
void toolBoxButton(Form1& form)
{
    form.controls.flipVisible(control::Frame2);
    form.controls.flipChecked("toolbox");
}

void eraserPicture(Form1& form)
{
    form.controls.setText(control::sb, " Press 'E' to return to normal mode ");
    eraser1(form);
}

struct ToolButton {
    Name name;
    std::string_view tip;
    std::string_view hint; ///< for the status bar
    Handler handler = nullptr;
    int CanvasState::*pressed = nullptr; ///< the switch that it shows
    Color CanvasState::*swatch = nullptr;
};

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

/// Draws a symbol, a component or a source for its toolbox picture, the pen at (x, y) twips.
template <const auto& component, int x, int y> void sketch(Surface& surface)
{
    Pen pen{x, y, heading::right};
    draw(surface, pen, component.branches, "10");
}

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

template <typename Tool> const Tool* find(std::span<const Tool> tools, Name name)
{
    const auto found = std::ranges::find(tools, name, &Tool::name);
    return found == tools.end() ? nullptr : &*found;
}

} // namespace

std::span<const ToolPicture> toolboxPictures()
{
    return pictures;
}

void addTools(Form1& form)
{
    for (const ToolButton& button : toolbar) {
        form.controls.addToolButton(button.name, button.tip, button.pressed != nullptr ? Look::unchecked : Look::plain);
    }
    for (const ToolPicture& picture : pictures) {
        if (picture.draw != nullptr) {
            form.controls.drawPicture(picture.name, picture.draw);
        }
    }
}

void showTools(Form1& form)
{
    for (const ToolButton& button : toolbar) {
        if (button.pressed != nullptr) {
            form.controls.setChecked(button.name, form.*button.pressed == 1);
        }
        if (button.swatch != nullptr) {
            form.controls.setSwatch(button.name, form.*button.swatch);
        }
    }
}

Handler toolHandler(Name name)
{
    if (const auto* const button = find<ToolButton>(toolbar, name)) {
        return button->handler;
    }
    const auto* const picture = find<ToolPicture>(pictures, name);
    return picture == nullptr ? nullptr : picture->handler;
}

void hover(Form1& form, Name name)
{
    form.pointer.reset();
    if (name.empty()) {
        return;
    }
    if (name == control::Frame2) {
        Label1(form);
    } else if (const auto* const button = find<ToolButton>(toolbar, name)) {
        form.controls.setText(control::sb, button->hint);
    } else if (const auto* const picture = find<ToolPicture>(pictures, name)) {
        form.controls.setText(control::sb, picture->hint);
    }
}

void lll(Form1& form)
{
    HideToolbar(form);
}

void toolbox(Form1& form)
{
    const bool shown = !form.controls.visible(control::Frame2);
    form.controls.setVisible(control::Frame2, shown);
    form.controls.setChecked("toolbox", shown);
}

void HideToolbar(Form1& form)
{
    form.controls.flipVisible(control::Toolbar1);
    form.controls.flipChecked("lll");
}

void Label1(Form1& form)
{
    form.toolboxFollow = form.toolboxFollow == 1 ? 0 : 1;
}
