#include "shell/help.h"

namespace schemlet {

namespace {

constexpr int slideInterval = 100; // milliseconds

/// Sets the window up before it is shown for the first time.
void loadForm2(Form1& form)
{
    if (form.helpLoaded == 1) {
        return;
    }
    form.helpLoaded = 1;
    form.form2.setHeight(form2::collapsedHeight);
    if (form.helpOpen == 1) {
        form.form2.setInterval(form2::control::Timer2, slideInterval);
    }
}

} // namespace

void form2::Check1(Form1& form)
{
    if (form.form2.height() != collapsedHeight) {
        form.form2.setHeight(collapsedHeight);
        return;
    }
    form2::Timer2(form); // qualified, because the main window has a Timer2 too
    form.form2.setInterval(control::Timer2, slideInterval);
}

void form2::Label23(Form1& form)
{
    form.form2.setValue(control::Check1, form.form2.value(control::Check1) == 0 ? 1 : 0);
    Check1(form);
}

void form2::Timer2(Form1& form)
{
    constexpr int step = 100;
    const int height = form.form2.height() + step;
    if (height < openHeight) {
        form.form2.setHeight(height);
        return;
    }
    form.form2.setHeight(openHeight);
    form.form2.setInterval(control::Timer2, 0);
}

void form2::Command1(Form1& form)
{
    form.form2.hideWindow();
}

void htu(Form1& form)
{
    loadForm2(form);
    form.form2.showWindow();
}

void showHelpAtStart(Form1& form)
{
    loadForm2(form);
    form.form2.showWithoutKeyboard();
}

} // namespace schemlet
