#include "shell/status_bar.h"

#include <string>

namespace {

struct HeadingTexts {
    std::string_view shown;  ///< in the status bar
    std::string_view spoken; ///< for a screen reader, which makes nothing of an arrow
};

HeadingTexts headingTexts(int code)
{
    switch (code) {
    case heading::right: return {"→ Right", ", heading right"};
    case heading::left: return {"← Left", ", heading left"};
    case heading::up: return {"↑ Up", ", heading up"};
    case heading::down: return {"↓ Down", ", heading down"};
    default: return {};
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

/// The pointer over the canvas: it points where the tool's ink starts.
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

/// What the status bar shows, for somebody who does not see it.
std::string spokenStatus(const CanvasState& state)
{
    std::string text = "Pen at " + penText(state) + " twips";
    text += headingTexts(state.heading).spoken;
    text += ", tool ";
    text += toolText(state);
    return state.eraseMode == 1 ? text + ", erase mode" : text;
}

} // namespace

void showStatus(Form1& form)
{
    form.statusDue = 0;
    form.controls.setInterval(control::statusTimer, 0);
    form.controls.setText(control::sbPen, penText(form));
    form.controls.setText(control::sbHeading, headingTexts(form.heading).shown);
    form.controls.setText(control::sbTool, toolText(form));
    form.controls.setCursor(cursorFor(form));
    form.controls.placeAwayFrom(control::panel, form.x, form.y); // the pen may have come near
    form.controls.setText(control::sbErase, form.eraseMode == 1 ? "Erase mode" : "Normal mode");
    form.controls.setDescription(control::Canvas, spokenStatus(form));
}

void showStatusSoon(Form1& form)
{
    constexpr int delay = 40; // milliseconds
    if (form.statusDue == 0) {
        form.statusDue = 1;
        form.controls.setInterval(control::statusTimer, delay);
    }
}

void sss(Form1& form)
{
    form.controls.flipVisible(control::statusBar);
    form.controls.flipChecked("sss");
}
