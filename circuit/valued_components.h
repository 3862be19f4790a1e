#pragma once

#include "canvas/canvas_state.h"

// Components with a value: each asks for it in an input box, adds it to its total, draws the symbol along the heading,
// prints the value as typed and moves the pen past it. Zero, an empty box or Cancel adds and draws nothing. The
// foreground is black afterwards, the marker goes with its left edge. Throws if the text is no number or the total
// grows out of range; total, pen and drawing are then as before, but the foreground is the family's colour.

/// Adds to the sum of resistances, in ohm.
void resistanc(Form1& form);
/// Adds to the sum of inductances, in henry.
void inductanc(Form1& form);
/// Adds the reciprocal to the sum of reciprocals, in 1/farad: capacitors stand in series.
void capacitanc(Form1& form);
