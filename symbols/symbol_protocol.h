#pragma once

#include "canvas/form1.h"
#include "symbols/stroke.h"

namespace schemlet {

/// What happens to the pen marker after a symbol.
enum class Marker {
    stays,
    leftFollows ///< its left edge moves to the pen, even if no branch fits the heading; its top stays
};

/// The foreground colour after a symbol.
enum class ColorAfter {
    kept, ///< the family's colour
    toBlack,
    toBlackUnlessAsked ///< the family's colour if the question was asked, otherwise black
};

/// One symbol of the library, as data. Everything place() does follows from these fields.
struct Symbol {
    std::string_view title;              ///< of the question
    Confirm confirm;                     ///< the switch of the question
    int CanvasState::*answer;            ///< where the answer is stored
    Color CanvasState::*color = nullptr; ///< the family's colour; null draws in the current colour
    std::span<const Branch> branches{};
    Marker marker = Marker::stays;
    ColorAfter colorAfter = ColorAfter::kept;
    int CanvasState::*count = nullptr; ///< counts how often the symbol was placed, even if nothing was drawn
};

/// Draws the first branch for the pen's heading, and moves the pen. Does nothing and returns false if there is none.
/// Strokes of kind value print the value.
bool draw(Surface& surface, Pen& pen, std::span<const Branch> branches, std::string_view value);

/// Asks the symbol's question, counts the symbol, sets its colour, draws it at the pen, sets the colour after it and
/// moves the marker. After any answer except Yes, only the answer is stored. If no branch fits the heading, nothing is
/// drawn, the pen stays, and a notice says why.
void place(Form1& form, const Symbol& symbol);

/// The command that places a symbol.
template <const Symbol& symbol> void place(Form1& form)
{
    place(form, symbol);
}

/// Moves the marker's left edge to the pen and leaves its top where it is.
void moveMarkerLeft(Form1& form);

} // namespace schemlet
