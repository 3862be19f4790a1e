#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// The height of the marker's top above the pen, in twips: the 16 pixels of its picture and 4 that leave the ink
/// visible.
inline constexpr double markerRise = 300;

void setMarkerLeft(Form1& form, double twips);
void setMarkerTop(Form1& form, double twips);

/// Moves the marker's left edge to this place, in twips, and its top to markerRise above the pen.
void placeMarker(Form1& form, double left);

/// One tick of the marker's blink, every 500 ms.
void Timer2(Form1& form);

} // namespace schemlet
