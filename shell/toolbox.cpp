#include "shell/toolbox.h"

#include "canvas/keyboard.h"
#include "shell/commands.h"

namespace schemlet {

namespace {

template <typename Tool> void showHint(Form1& form, std::span<const Tool> tools, std::string_view name)
{
    for (const Tool& tool : tools) {
        if (tool.name.text() == name) {
            form.window.setText(control::sb, tool.hint);
        }
    }
}

} // namespace

void addTools(Form1& form)
{
    for (const ToolButton& button : toolbarButtons()) {
        form.window.addToolButton(button.name, button.tip, button.pressed != nullptr ? Look::unchecked : Look::plain);
    }
    for (const ToolPicture& picture : toolboxPictures()) {
        if (picture.draw != nullptr) {
            form.window.drawPicture(picture.name, picture.draw);
        }
    }
}

void showTools(Form1& form)
{
    for (const ToolButton& button : toolbarButtons()) {
        if (button.pressed != nullptr) {
            form.window.setChecked(button.name, form.*button.pressed == 1);
        }
        if (button.swatch != nullptr) {
            form.window.setSwatch(button.name, form.*button.swatch);
        }
    }
}

void hover(Form1& form, std::string_view name, Point place)
{
    form.pointer.reset();
    if (name == control::Canvas.text()) {
        form.pointer = place;
    }
    if (name.empty()) {
        return;
    }
    if (name == control::Frame2.text()) {
        return Label1(form);
    }
    showHint(form, toolbarButtons(), name);
    showHint(form, toolboxPictures(), name);
}

void colorToolbox(Form1& form, Color color)
{
    form.toolboxColor = color;
    form.window.setBackColor(control::Frame2, color);
}

void lll(Form1& form)
{
    HideToolbar(form);
}

void toolbox(Form1& form)
{
    const bool shown = !form.window.visible(control::Frame2);
    form.window.setVisible(control::Frame2, shown);
    form.window.setChecked(item::toolbox, shown);
}

void toolBoxButton(Form1& form)
{
    form.window.flipVisible(control::Frame2);
    form.window.flipChecked(item::toolbox);
}

void eraserPicture(Form1& form)
{
    form.window.setText(control::sb, " Press 'E' to return to normal mode ");
    eraser1(form);
}

void HideToolbar(Form1& form)
{
    form.window.flipVisible(control::Toolbar1);
    form.window.flipChecked(item::lll);
}

void Label1(Form1& form)
{
    form.toolboxFollow = form.toolboxFollow == 1 ? 0 : 1;
}

} // namespace schemlet
