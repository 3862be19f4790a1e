#pragma once

#include "canvas/form1.h"
#include "symbols/stroke.h"

namespace schemlet {

/// What becomes of the pen marker.
enum class Marker {
    stays,
    leftFollows ///< its left edge goes to the pen, its top stays; also when no branch fits the heading
};

/// The foreground colour a symbol leaves behind.
enum class ColorAfter {
    kept, ///< the family's
    toBlack,
    toBlackUnlessAsked ///< the family's after an answered question, black after none
};

/// One symbol of the library, as data. Everything place() does follows from these fields.
struct Symbol {
    std::string_view title;              ///< of its question
    Confirm confirm;                     ///< the switch that asks it
    int CanvasState::*answer;            ///< takes the question's answer
    Color CanvasState::*color = nullptr; ///< the family's colour; none draws in the current one
    std::span<const Branch> branches{};
    Marker marker = Marker::stays;
    ColorAfter colorAfter = ColorAfter::kept;
    int CanvasState::*count = nullptr; ///< grows each time the symbol goes ahead
};

/// Draws the first branch that fits the pen's heading, and moves the pen by it. Without such a branch it does nothing
/// and returns false. Strokes of kind value print the text given here.
bool draw(Surface& surface, Pen& pen, std::span<const Branch> branches, std::string_view value);

/// Asks the symbol's question, counts it, sets its colour, draws it at the pen, sets the colour after it and places the
/// marker. Any answer but Yes changes nothing but the answer. A heading without a branch draws nothing, leaves the
/// pen and brings a notice.
void place(Form1& form, const Symbol& symbol);

/// The command that places a symbol.
template <const Symbol& symbol> void place(Form1& form)
{
    place(form, symbol);
}

/// Moves the marker's left edge to the pen and leaves its top where it is.
void moveMarkerLeft(Form1& form);

} // namespace schemlet
