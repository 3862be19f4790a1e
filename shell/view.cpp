#include "shell/view.h"

#include "shell/commands.h"
#include "shell/help.h"
#include "shell/toolbox.h"

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

/// What starts hidden or disabled, and the toolbox's colour until the canvas gets one.
void prepareControls(Form1& form)
{
    using namespace control;
    form.controls.hide({Label27, Shape1, panel, sup, bat, Label11, Label13, Label12, Label28});
    form.controls.hide({Option1, Option2, Option3, Option4, Option5, Text11, Command3, Command7, Command8});
    form.controls.disable({Option1, Option2, Option3, Option4, Option5, Text11, Command3, Command7, Command8});
    form.controls.setBackColor(Frame2, 0xE0E0E0);
}

} // namespace

void openMainWindow(Form1& form)
{
    addMenus(form);
    addTools(form);
    prepareControls(form);
    load(form);
    showStatus(form);
    form.controls.showWindow();
    constexpr int helpDelay = 100; // milliseconds
    form.controls.setInterval(control::Timer1, helpDelay);
    constexpr int blinkInterval = 500;
    form.controls.setInterval(control::Timer2, blinkInterval);
}

void Timer1(Form1& form)
{
    if (form.startShown == 0) {
        showHelpAtStart(form);
    }
    form.controls.setInterval(control::Timer1, 0);
    form.startShown = 1;
}

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
