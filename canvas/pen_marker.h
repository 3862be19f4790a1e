#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// How far the marker's top stands above the pen, in twips: its picture's 16 pixels, and 4 to see the ink.
inline constexpr double markerRise = 300;

void setMarkerLeft(Form1& form, double twips);
void setMarkerTop(Form1& form, double twips);

/// Moves the marker to a left edge of its own, in twips, and to the pen's height.
void placeMarker(Form1& form, double left);

/// One tick of the marker's blink, every 500 ms.
void Timer2(Form1& form);

} // namespace schemlet
