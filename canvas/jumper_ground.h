#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Hops over a crossing wire along the heading, in the foreground colour, and moves the pen past it: 200 twips to the
/// right or left, 220 up or down. For any other heading it does nothing and returns false.
bool drawJumper(Surface& surface, Pen& pen);

/// Draws the ground symbol at the pen and down to 150 twips below it, in the foreground colour.
void drawGround(Surface& surface, const Pen& pen);

// The commands. The marker stays.
void jumper(Form1& form);
void ground(Form1& form);

} // namespace schemlet
