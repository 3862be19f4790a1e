#include "circuit/output_window.h"

#include "canvas/notice.h"
#include "circuit/numbers.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <utility>

namespace schemlet {

namespace {

constexpr double twoPi = 6.285714; // stands for two pi in every result, and must not be made more precise

/// Clears the window before it is filled for the first time.
void loadForm4(Form1& form)
{
    if (form.form4Loaded == 1) {
        return;
    }
    form.form4Loaded = 1;
    clearOutput(form);
}

void showText(Form1& form, Name value, std::string text)
{
    const auto* const place = std::ranges::find(form4::control::values, value);
    std::string& kept = form.outputTexts[static_cast<std::size_t>(place - std::begin(form4::control::values))];
    kept = std::move(text);
    form.form4.setText(value, kept);
}

void showNumber(Form1& form, Name label, double number)
{
    showText(form, label, toText(number));
}

void computeResonance(Form1& form)
{
    form.resonanceDenominator = checked(squareRoot(checked(form.induc * form.capac)) * twoPi);
    if (form.resonanceDenominator != 0) {
        form.resonanceFrequency = checked(1 / form.resonanceDenominator);
        showNumber(form, form4::control::Label21, form.resonanceFrequency);
    }
}

void computeQuality(Form1& form)
{
    form.qualityFactor = checked(squareRoot(checked(form.induc / form.capac)) * checked(1 / form.resist));
    form.frequencyCopy = form.resonanceFrequency;
    form.angularFrequency = checked(form.frequencyCopy * twoPi);
    form.frequencyCapac = checked(form.frequencyCopy * form.capac);
    form.capacitiveReactance = checked(1 / form.frequencyCapac); // stored, but not shown
    showNumber(form, form4::control::Label22, form.qualityFactor);
    showNumber(form, form4::control::Label23, checked(form.induc * form.angularFrequency));
    showNumber(form, form4::control::Label24, form.capac);
}

void computeOutput(Form1& form)
{
    showNumber(form, form4::control::Label18, form.resist);
    showNumber(form, form4::control::Label19, form.induc);
    showNumber(form, form4::control::Label20, form.capac == 0 ? 0 : checked(1 / form.capac));
    if (form.capac != 0 || form.induc != 0) {
        computeResonance(form);
    }
    if (form.resonanceFrequency != 0 && form.capac != 0 && form.resist != 0) {
        computeQuality(form);
    }
    showNumber(form, form4::control::Label14, form.supplyVoltage);
    showNumber(form, form4::control::Label15, form.supplyCurrent);
}

} // namespace

void output(Form1& form)
{
    loadForm4(form);
    for (const Name caption : form4::control::captions) {
        form.form4.setVisible(caption, true);
    }
    for (const Name value : form4::control::values) {
        form.form4.setVisible(value, true);
    }
    form.form4.showWindow();
    try {
        computeOutput(form);
    } catch (const RuntimeError& error) {
        showError(form, error);
        form.form4.showWindow(); // it became active too late for the message box to return the focus to it
    }
}

void clearOutput(Form1& form)
{
    for (const Name value : form4::control::values) {
        showText(form, value, "0");
    }
}

void showOutputTexts(Form1& form)
{
    for (std::size_t i = 0; i < form.outputTexts.size(); ++i) {
        form.form4.setText(form4::control::values[i], form.outputTexts[i]);
    }
}

void refreshOutput(Form1& form)
{
    loadForm4(form);
    computeOutput(form);
}

void form4::printForm(Form1& form)
{
    form.form4.printForm();
}

} // namespace schemlet
