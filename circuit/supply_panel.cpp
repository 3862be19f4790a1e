#include "circuit/supply_panel.h"

#include "canvas/notice.h"
#include "circuit/numbers.h"
#include "circuit/sources.h"
#include "platform/runtime_error.h"

#include <algorithm>

namespace {

constexpr Name kinds[] = {control::Option2, control::Option3, control::Option4, control::Option5};

/// The box shows as long as a family is open.
void followFamilies(Form1& form)
{
    const bool open = form.controls.visible(control::sup) || form.controls.visible(control::bat);
    form.controls.setVisible(control::panel, open);
    keepPanelAside(form);
}

void askForValue(Form1& form, Name prompt, Name cancel)
{
    form.controls.show({prompt, control::Command3, cancel, control::Text11});
    form.controls.enable({control::Command3, cancel, control::Text11});
    form.controls.focus(control::Text11);
}

/// Where the number is too large, the keyboard goes to it.
double typedValue(Form1& form)
{
    try {
        return leadingNumber(form.controls.text(control::Text11));
    } catch (const RuntimeError&) {
        form.controls.focus(control::Text11);
        throw;
    }
}

void hideRestOfPanel(Form1& form)
{
    form.controls.hide({control::Option1, control::Option2, control::Option3, control::Option4, control::Option5,
                        control::Label11, control::Label13, control::bat, control::sup});
    followFamilies(form);
}

/// And not cancelled, which leaves the choice but disables it.
bool isChosen(const Form1& form, Name option)
{
    return form.controls.value(option) != 0 && form.controls.enabled(option);
}

/// Whether this kind was chosen. If so, it is drawn next, and the choice is used up.
bool takes(Form1& form, Name option)
{
    if (!isChosen(form, option)) {
        return false;
    }
    hideRestOfPanel(form);
    form.controls.setValue(option, 0);
    return true;
}

} // namespace

void suppl(Form1& form)
{
    form.controls.enable({control::Option1});
    form.controls.show({control::sup});
    form.controls.enable({control::Option2, control::Option3});
    form.controls.setValue(control::Option2, 0);
    form.controls.setValue(control::Option3, 0);
    form.controls.show({control::Label11, control::Option1, control::Option2, control::Option3});
    form.lastFamily = control::sup;
    followFamilies(form);
}

void batter(Form1& form)
{
    form.controls.show({control::bat});
    form.controls.enable({control::Option4, control::Option5});
    form.controls.show({control::Option1, control::Label13, control::Option4, control::Option5});
    form.controls.enable({control::Option5});
    form.controls.setValue(control::Option4, 0);
    form.controls.setValue(control::Option5, 0);
    form.controls.hide({control::Label28});
    form.lastFamily = control::bat;
    followFamilies(form);
}

void Option2(Form1& form)
{
    askForValue(form, control::Label12, control::Command8);
}

void Option3(Form1& form)
{
    askForValue(form, control::Label12, control::Command8);
}

void Option4(Form1& form)
{
    form.controls.setValue(control::Option5, 0);
    askForValue(form, control::Label28, control::Command7);
}

void Option5(Form1& form)
{
    form.controls.setValue(control::Option4, 0);
    askForValue(form, control::Label28, control::Command7);
}

void Command3(Form1& form)
{
    const double typed = typedValue(form); // before anything is hidden: it may overflow
    form.controls.hide({control::Command7, control::Command8, control::Text11, control::Label12, control::Command3});
    form.supplyValue = typed;
    if (std::ranges::none_of(kinds, [&form](Name kind) { return isChosen(form, kind); })) {
        notify(form, "Nothing drawn: no kind was chosen");
    }
    if (takes(form, control::Option4)) {
        place(form, positiveBattery, typed);
    }
    if (takes(form, control::Option5)) {
        place(form, negativeBattery, typed);
    }
    form.controls.setText(control::Text11, "");
    if (takes(form, control::Option3)) {
        place(form, voltageSupply, typed);
    }
    if (takes(form, control::Option2)) {
        place(form, currentSupply, typed);
    }
}

void Command7(Form1& form)
{
    form.controls.disable({control::Option4, control::Option5, control::Option1});
    form.controls.hide({control::bat});
    form.controls.disable({control::Command3, control::Command7});
    form.controls.hide({control::Option4, control::Option5});
    form.controls.disable({control::Text11});
    form.lastFamily = control::sup; // if that is open too
    followFamilies(form);
}

void Command8(Form1& form)
{
    form.controls.disable({control::Option2, control::Option3, control::Option1});
    form.controls.hide({control::sup});
    form.controls.disable({control::Command3, control::Command8});
    form.controls.hide({control::Option2, control::Option3, control::Label11, control::Label12});
    form.controls.disable({control::Text11});
    form.lastFamily = control::bat;
    followFamilies(form);
}

void cancelPanel(Form1& form)
{
    if (form.lastFamily == control::bat) {
        Command7(form);
    } else {
        Command8(form);
    }
}

void keepPanelAside(Form1& form)
{
    form.controls.placeAwayFrom(control::panel, pointBeside(form), control::Frame2);
}

void clearOptions(Form1& form)
{
    for (const Name option : kinds) {
        form.controls.setValue(option, 0);
    }
}

void colorPanel(Form1& form)
{
    for (const Name option : kinds) {
        form.controls.setBackColor(option, form.canvasBackColor);
    }
    form.controls.setBackColor(control::panel, form.canvasBackColor);
    form.controls.setBackColor(control::bat, form.canvasBackColor);
    form.controls.setBackColor(control::sup, form.canvasBackColor);
}
