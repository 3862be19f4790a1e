#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

/// A component with a value. The user is asked for the value, which is added to a total and printed as typed.
struct ValuedComponent {
    std::string_view prompt;
    std::string_view title;
    Color CanvasState::*color;
    std::string CanvasState::*typed; ///< the text last entered
    double CanvasState::*total;
    double (*share)(double value); ///< what a value adds to the total
    std::span<const Branch> branches;
};

extern const ValuedComponent resistor;  ///< adds to the sum of resistances, in ohm
extern const ValuedComponent inductor;  ///< adds to the sum of inductances, in henry
extern const ValuedComponent capacitor; ///< adds to the sum of reciprocals, in 1/farad: as if all were in series

/// Asks for the value in an input box, adds it to the total, draws the component along the heading and moves the pen
/// past it. For zero, an empty text or Cancel, adds and draws nothing. Afterwards the foreground is black, and the
/// marker's left edge follows the pen. Throws typeMismatch if the text is no number, overflow if the number or the
/// total is out of range. Then the total, the pen and the ink are unchanged, but the foreground is the family's colour.
void place(Form1& form, const ValuedComponent& component);

template <const ValuedComponent& component> void place(Form1& form)
{
    place(form, component);
}

inline constexpr Handler resistanc = place<resistor>;
inline constexpr Handler inductanc = place<inductor>;
inline constexpr Handler capacitanc = place<capacitor>;

} // namespace schemlet
