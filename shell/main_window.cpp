#include "shell/main_window.h"

#include "shell/commands.h"
#include "shell/help.h"
#include "shell/status_bar.h"
#include "shell/toolbox.h"

namespace {

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
