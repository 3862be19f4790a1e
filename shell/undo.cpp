#include "shell/undo.h"

#include "canvas/jumper_ground.h"
#include "canvas/notice.h"
#include "canvas/pen_marker.h"
#include "canvas/wire.h"
#include "circuit/output_window.h"
#include "circuit/supply_panel.h"
#include "shell/commands.h"
#include "shell/confirmations.h"
#include "shell/files.h"
#include "shell/repeat.h"
#include "shell/toolbox.h"

namespace schemlet {

namespace {

/// Updates the windows to the restored state.
void showDrawing(Form1& form, const Drawing& before, const std::string& titleBefore)
{
    setMarkerLeft(form, form.markerLeft);
    setMarkerTop(form, form.markerTop);
    form.window.setVisible(control::Label27, form.eraseMode == 1);
    if (form.eraseMode == 0) {
        form.window.setVisible(control::Shape1, false);
    }
    for (std::size_t family = 0; family < confirmCount; ++family) {
        form.window.setChecked(confirmItems[family], form.confirm[family] == 1);
    }
    if (form.title != titleBefore) {
        setTitle(form, form.title);
    }
    if (form.outputTexts != before.outputTexts) {
        showOutputTexts(form);
    }
    if (form.canvasBackColor != before.canvasBackColor) {
        colorPanel(form);
    }
    if (form.toolboxColor != before.toolboxColor) {
        colorToolbox(form, form.toolboxColor);
    }
}

void restore(Form1& form, std::string (History::*way)(Form1&), std::string_view done)
{
    const Drawing before = form;
    const std::string titleBefore = form.title;
    const std::string name = (form.history.*way)(form);
    if (!name.empty()) {
        showDrawing(form, before, titleBefore);
        notify(form, std::string(done) + name);
    }
}

std::string_view toolName(const Form1& form)
{
    if (form.eraseMode == 1) {
        return "eraser";
    }
    if (form.lineTool == 1) {
        return "line";
    }
    if (form.rectTool == 1) {
        return "rectangle";
    }
    return form.pencilTool == 1 ? "pencil" : "wire";
}

bool addedSupply(const Drawing& before, const Drawing& after)
{
    return before.supplyVoltage != after.supplyVoltage || before.supplyCurrent != after.supplyCurrent;
}

void showButton(Form1& form, Name button, std::string_view verb, std::string_view step, std::string_view key)
{
    form.window.setEnabled(button, !step.empty());
    form.window.setTip(button, std::string(verb) + (step.empty() ? "" : " ") + std::string(step) + " (" +
                                   std::string(key) + ")");
}

} // namespace

std::string stepName(const Form1& form, const Event& event)
{
    const Drawing& before = form.history.before();
    switch (event.kind) {
    case Event::Kind::mouseUp: return std::string(toolName(form));
    case Event::Kind::keyDown: return hopped(before, form) ? captionOf(jumper) : "wire";
    default: break;
    }
    if (event.name == control::Command3.text()) {
        return captionOf(addedSupply(before, form) ? suppl : batter);
    }
    const Handler command = commandOf(event);
    return captionOf(command == repeat ? form.lastComponent : command);
}

void undo(Form1& form)
{
    restore(form, &History::undo, "Undone: ");
}

void redo(Form1& form)
{
    restore(form, &History::redo, "Redone: ");
}

void showUndo(Form1& form)
{
    showButton(form, control::undo, "Undo", form.history.undoable(), "Ctrl+Z");
    showButton(form, control::redo, "Redo", form.history.redoable(), "Ctrl+Y");
}

} // namespace schemlet
