#include "shell/status_bar.h"

#include "canvas/notice.h"
#include "circuit/supply_panel.h"
#include "shell/toolbox.h"
#include "shell/undo.h"

#include <cmath>
#include <string>

namespace schemlet {

namespace {

std::string_view headingText(int code)
{
    switch (code) {
    case heading::right: return "→ Right";
    case heading::left: return "← Left";
    case heading::up: return "↑ Up";
    case heading::down: return "↓ Down";
    default: return "no direction, press an arrow key";
    }
}

std::string_view toolText(const CanvasState& state)
{
    if (state.lineTool == 1) {
        return "Line";
    }
    if (state.rectTool == 1) {
        return "Rectangle";
    }
    return state.pencilTool == 1 ? "Pencil" : "Pen";
}

/// The pointer over the canvas. Its hot spot is where the tool's ink starts.
Cursor cursorFor(const CanvasState& state)
{
    if (state.eraseMode == 1) {
        return {"eraser", 12, 12};
    }
    if (state.lineTool == 1) {
        return {"line", 8, 8};
    }
    if (state.rectTool == 1) {
        return {"box", 8, 8};
    }
    return state.pencilTool == 1 ? Cursor{"pencil", 2, 21} : Cursor{"pen", 2, 21};
}

std::string wholeTwips(double twips)
{
    return std::to_string(static_cast<long long>(twips));
}

std::string penText(const CanvasState& state)
{
    return wholeTwips(state.x) + ", " + wholeTwips(state.y);
}

/// The pointer's position in canvas pixels; empty while it is not over the canvas.
std::string pointerText(const CanvasState& state)
{
    if (!state.pointer) {
        return {};
    }
    const auto pixel = [](double twips) {
        return std::to_string(static_cast<long long>(std::floor(twips / twipsPerPixel)));
    };
    return pixel(state.pointer->x) + ", " + pixel(state.pointer->y) + " px";
}

std::string_view offCanvasText(const Form1& form)
{
    return form.window.isOnCanvas(pointBeside(form)) ? "" : "off the canvas";
}

/// The status for screen readers, with the mnemonics of the open panel, because the focus is still on the canvas.
std::string spokenStatus(const Form1& form)
{
    std::string text = form.notice.empty() ? "" : form.notice + ". ";
    text += "Pen at " + penText(form) + " twips";
    const auto add = [&text](std::string_view before, std::string_view part) {
        text.append(part.empty() ? "" : before).append(part);
    };
    add(", ", offCanvasText(form));
    const std::string_view heading = headingName(form.heading);
    heading.empty() ? add(", ", headingText(form.heading)) : add(", heading ", heading);
    add(", tool ", toolText(form));
    add(", ", form.eraseMode == 1 ? "erase mode" : "");
    add(", ", form.autoJumper == 1 ? "automatic jumpers" : "");
    add(", ", form.window.visible(control::sup) ? "supply: Alt+V voltage, Alt+C current" : "");
    add(", ", form.window.visible(control::bat) ? "battery: Alt+P positive, Alt+N negative" : "");
    return text;
}

/// Sets the text of a panel that is visible only while it has one.
void setOptionalText(Form1& form, Name panel, std::string_view text)
{
    form.window.setText(panel, text);
    form.window.setVisible(panel, !text.empty());
}

void showNotice(Form1& form)
{
    setOptionalText(form, control::sbNotice, form.notice.empty() ? form.saveFault : form.notice);
}

} // namespace

void showStatus(Form1& form)
{
    form.statusDue = 0;
    form.window.setInterval(control::statusTimer, 0);
    form.window.setText(control::sbPen, penText(form));
    form.window.setText(control::sbHeading, headingText(form.heading));
    form.window.setText(control::sbTool, toolText(form));
    form.window.setText(control::sbErase, form.eraseMode == 1 ? "Erase mode" : "Normal mode");
    form.window.setText(control::sbJumpers, form.autoJumper == 1 ? "Jumpers" : "");
    setOptionalText(form, control::sbOffCanvas, offCanvasText(form));
    setOptionalText(form, control::sbPointer, pointerText(form));
    showNotice(form);
    showTools(form);
    showUndo(form);
    form.window.setCursor(cursorFor(form));
    keepPanelAside(form); // the pen may have come near the panel
    form.window.setDescription(control::Canvas, spokenStatus(form));
}

void endNotice(Form1& form)
{
    forgetNotice(form);
    showNotice(form); // only this: the canvas's description would be read again without being news
}

void showStatusSoon(Form1& form)
{
    constexpr int delay = 40; // milliseconds
    if (form.statusDue == 0) {
        form.statusDue = 1;
        form.window.setInterval(control::statusTimer, delay);
    }
}

void sss(Form1& form)
{
    form.window.flipVisible(control::statusBar);
    form.window.flipChecked(item::sss);
}

} // namespace schemlet
