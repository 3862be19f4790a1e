#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

/// A supply or a battery. It is drawn along the heading in black, and the foreground stays black. The marker stays.
struct Source {
    double CanvasState::*value; ///< a battery's last value or a supply's sum, in volt or ampere
    bool sums;                  ///< adds to the value instead of replacing it
    std::span<const Branch> branches;
};

extern const Source positiveBattery;
extern const Source negativeBattery;
extern const Source voltageSupply;
extern const Source currentSupply;

/// Stores the value, draws the source with it and moves the pen past it. Throws overflow if a sum is out of range; then
/// nothing has changed.
void place(Form1& form, const Source& source, double value);

} // namespace schemlet
