#include "shell/main_window.h"

#include "canvas/pen_marker.h"
#include "circuit/output_window.h"
#include "circuit/supply_panel.h"
#include "shell/commands.h"
#include "shell/files.h"
#include "shell/help.h"
#include "shell/status_bar.h"
#include "shell/toolbox.h"

namespace schemlet {

namespace {

/// Hides what is hidden at start, and colours the toolbox until the user picks a canvas colour.
void prepareControls(Form1& form)
{
    constexpr Color lightGrey = 0xE0E0E0;
    preparePanel(form);
    form.window.hide({control::Label27, control::Shape1});
    colorToolbox(form, lightGrey);
}

} // namespace

void load(Form1& form)
{
    setTitle(form, noFile);
    resetCanvas(form);
    colorPanel(form);
    clearOptions(form);
    refreshOutput(form);
}

void openMainWindow(Form1& form)
{
    addMenus(form);
    addTools(form);
    prepareControls(form);
    load(form);
    showStatus(form);
    form.window.showWindow();
    constexpr int helpDelay = 100; // milliseconds
    form.window.setInterval(control::Timer1, helpDelay);
    constexpr int blinkInterval = 500;
    form.window.setInterval(control::Timer2, blinkInterval);
}

void Timer1(Form1& form)
{
    if (form.startShown == 0) {
        showHelpAtStart(form);
    }
    form.window.setInterval(control::Timer1, 0);
    form.startShown = 1;
}

} // namespace schemlet
