#pragma once

#include "canvas/form1.h"

#include <array>

namespace schemlet {

// The Output window shows the totals and the values computed from them. If a value cannot be computed, the old one
// stays. The formulas take the sum of the capacitances' reciprocals for a capacitance and 6.285714 for two pi. So only
// resistance (ohm), inductance (henry), capacitance (farad), voltage (volt) and current (ampere) have a true unit.

/// The Output window and its controls.
namespace form4 {
inline constexpr Name window = "Form4";

namespace control {
// Captions
inline constexpr Name Label1 = "Label1";   ///< resistance
inline constexpr Name Label29 = "Label29"; ///< its unit
inline constexpr Name Label2 = "Label2";   ///< inductance
inline constexpr Name Label3 = "Label3";   ///< capacitance
inline constexpr Name Label4 = "Label4";   ///< resonance frequency
inline constexpr Name Label5 = "Label5";   ///< quality factor
inline constexpr Name Label6 = "Label6";   ///< inductive reactance
inline constexpr Name Label7 = "Label7";   ///< capacitive reactance
inline constexpr Name Label16 = "Label16"; ///< voltage
inline constexpr Name Label17 = "Label17"; ///< current
// Their values, in the same order
inline constexpr Name Label18 = "Label18";
inline constexpr Name Label19 = "Label19";
inline constexpr Name Label20 = "Label20";
inline constexpr Name Label21 = "Label21";
inline constexpr Name Label22 = "Label22";
inline constexpr Name Label23 = "Label23";
inline constexpr Name Label24 = "Label24";
inline constexpr Name Label14 = "Label14";
inline constexpr Name Label15 = "Label15";
inline constexpr Name print = "print"; ///< the button

inline constexpr Name captions[] = {Label1, Label29, Label2, Label3, Label4, Label5, Label6, Label7, Label16, Label17};
inline constexpr std::array<Name, std::tuple_size_v<OutputTexts>> values = {Label18, Label19, Label20, Label21, Label22,
                                                                            Label23, Label24, Label14, Label15};
} // namespace control

/// Prints the Output window. Throws RuntimeError(Fault::printerError).
void printForm(Form1& form);

} // namespace form4

/// Shows the Output window beside the main window and fills it. If a value throws an error as in refreshOutput(), a
/// message box shows the error.
void output(Form1& form);

/// Fills the window without showing it. Throws RuntimeError: invalidArgument if the product of inductance and
/// capacitance is negative, overflow if a result is out of range. The values before that are filled in.
void refreshOutput(Form1& form);

/// Shows 0 for every value.
void clearOutput(Form1& form);

/// Shows the texts that the state holds.
void showOutputTexts(Form1& form);

} // namespace schemlet
