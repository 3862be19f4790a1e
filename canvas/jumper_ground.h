#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Draws a hop over a crossing wire along the heading, in the foreground colour, and moves the pen past it: 200 twips
/// to the right or left, 220 up or down. Does nothing and returns false for any other heading.
bool drawJumper(Surface& surface, Pen& pen);

/// Draws the ground symbol from the pen down to 150 twips below it, in the foreground colour.
void drawGround(Surface& surface, const Pen& pen);

// The commands. They do not move the marker.
void jumper(Form1& form);
void ground(Form1& form);

} // namespace schemlet
