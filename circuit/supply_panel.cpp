#include "circuit/supply_panel.h"

#include "canvas/notice.h"
#include "circuit/numbers.h"
#include "circuit/sources.h"
#include "platform/runtime_error.h"

#include <algorithm>

namespace schemlet {

namespace {

/// A kind of source: its option, and what belongs to its family.
struct Kind {
    Name option;
    Name family;
    Name prompt;
    Name cancel;
};

constexpr Kind kinds[] = {{control::Option2, control::sup, control::Label12, control::Command8},
                          {control::Option3, control::sup, control::Label12, control::Command8},
                          {control::Option4, control::bat, control::Label28, control::Command7},
                          {control::Option5, control::bat, control::Label28, control::Command7}};

/// Shows the panel while a family is open.
void followFamilies(Form1& form)
{
    const bool open = form.window.visible(control::sup) || form.window.visible(control::bat);
    form.window.setVisible(control::panel, open);
    keepPanelAside(form);
}

LastSource& lastOf(Form1& form, Name family)
{
    return family == control::sup ? form.lastSupply : form.lastBattery;
}

/// Asks for the value.
void choose(Form1& form, Name option)
{
    const Kind& kind = *std::ranges::find(kinds, option, &Kind::option);
    lastOf(form, kind.family).option = option;
    form.window.show({kind.prompt, control::Command3, kind.cancel, control::Text11});
    form.window.enable({control::Command3, kind.cancel, control::Text11});
    form.window.focus(control::Text11);
}

/// If the number is too large, its text box gets the focus.
double typedValue(Form1& form)
{
    try {
        return leadingNumber(form.window.text(control::Text11));
    } catch (const RuntimeError&) {
        form.window.focus(control::Text11);
        throw;
    }
}

void hideRestOfPanel(Form1& form)
{
    form.window.hide({control::Option1, control::Option2, control::Option3, control::Option4, control::Option5,
                      control::Label11, control::Label13, control::bat, control::sup});
    followFamilies(form);
}

/// A cancelled option is still chosen, but disabled.
bool isChosen(const Form1& form, Name option)
{
    return form.window.value(option) != 0 && form.window.enabled(option);
}

/// Returns whether this kind is chosen. If so, clears the choice and hides the rest of the panel.
bool takeChoice(Form1& form, Name option)
{
    if (!isChosen(form, option)) {
        return false;
    }
    hideRestOfPanel(form);
    form.window.setValue(option, 0);
    return true;
}

} // namespace

void preparePanel(Form1& form)
{
    const auto frames = {control::panel, control::sup, control::bat};
    const auto labels = {control::Label11, control::Label13, control::Label12, control::Label28};
    const auto inputs = {control::Option1, control::Option2,  control::Option3,  control::Option4, control::Option5,
                         control::Text11,  control::Command3, control::Command7, control::Command8};
    form.window.hide(frames);
    form.window.hide(labels);
    form.window.hide(inputs);
    form.window.disable(inputs);
}

void suppl(Form1& form)
{
    form.window.enable({control::Option1});
    form.window.show({control::sup});
    form.window.enable({control::Option2, control::Option3});
    form.window.setValue(control::Option2, 0);
    form.window.setValue(control::Option3, 0);
    form.window.show({control::Label11, control::Option1, control::Option2, control::Option3});
    form.lastFamily = control::sup;
    followFamilies(form);
}

void batter(Form1& form)
{
    form.window.show({control::bat});
    form.window.enable({control::Option4, control::Option5});
    form.window.show({control::Option1, control::Label13, control::Option4, control::Option5});
    form.window.enable({control::Option5});
    form.window.setValue(control::Option4, 0);
    form.window.setValue(control::Option5, 0);
    form.window.hide({control::Label28});
    form.lastFamily = control::bat;
    followFamilies(form);
}

void Option2(Form1& form)
{
    choose(form, control::Option2);
}

void Option3(Form1& form)
{
    choose(form, control::Option3);
}

void Option4(Form1& form)
{
    form.window.setValue(control::Option5, 0);
    choose(form, control::Option4);
}

void Option5(Form1& form)
{
    form.window.setValue(control::Option4, 0);
    choose(form, control::Option5);
}

void chooseAgain(Form1& form)
{
    const LastSource last = lastOf(form, form.lastFamily);
    if (last.option.empty()) {
        return;
    }
    form.window.setValue(last.option, 1);
    if (form.window.text(control::Text11).empty()) { // otherwise keep what was typed later and cancelled
        form.window.setText(control::Text11, last.value);
    }
    choose(form, last.option);
}

void Command3(Form1& form)
{
    const double typed = typedValue(form); // may throw, so it comes before anything is hidden
    form.window.hide({control::Command7, control::Command8, control::Text11, control::Label12, control::Command3});
    form.supplyValue = typed;
    bool isAnyChosen = false;
    for (const Kind& kind : kinds) {
        if (isChosen(form, kind.option)) {
            isAnyChosen = true;
            lastOf(form, kind.family).value = form.window.text(control::Text11);
        }
    }
    if (!isAnyChosen) {
        notify(form, "Nothing drawn: no kind was chosen");
    }
    if (takeChoice(form, control::Option4)) {
        place(form, positiveBattery, typed);
    }
    if (takeChoice(form, control::Option5)) {
        place(form, negativeBattery, typed);
    }
    form.window.setText(control::Text11, "");
    if (takeChoice(form, control::Option3)) {
        place(form, voltageSupply, typed);
    }
    if (takeChoice(form, control::Option2)) {
        place(form, currentSupply, typed);
    }
}

void Command7(Form1& form)
{
    form.window.disable({control::Option4, control::Option5, control::Option1});
    form.window.hide({control::bat});
    form.window.disable({control::Command3, control::Command7});
    form.window.hide({control::Option4, control::Option5});
    form.window.disable({control::Text11});
    form.lastFamily = control::sup; // supplies may be open too
    followFamilies(form);
}

void Command8(Form1& form)
{
    form.window.disable({control::Option2, control::Option3, control::Option1});
    form.window.hide({control::sup});
    form.window.disable({control::Command3, control::Command8});
    form.window.hide({control::Option2, control::Option3, control::Label11, control::Label12});
    form.window.disable({control::Text11});
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
    form.window.placeAwayFrom(control::panel, pointBeside(form), control::Frame2);
}

void clearOptions(Form1& form)
{
    for (const Kind& kind : kinds) {
        form.window.setValue(kind.option, 0);
    }
}

void colorPanel(Form1& form)
{
    for (const Kind& kind : kinds) {
        form.window.setBackColor(kind.option, form.canvasBackColor);
    }
    form.window.setBackColor(control::panel, form.canvasBackColor);
    form.window.setBackColor(control::bat, form.canvasBackColor);
    form.window.setBackColor(control::sup, form.canvasBackColor);
}

} // namespace schemlet
