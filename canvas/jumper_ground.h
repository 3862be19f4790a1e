#pragma once

#include "canvas/canvas_state.h"

/// Hops over a crossing wire along the heading, in the foreground colour, and moves the pen past it: 200 twips to the
/// right or left, 220 up or down. Draws nothing for any other heading. The marker stays.
void jumper(Form1& form);

/// Draws the ground symbol at the pen and down to 150 twips below it, in the foreground colour. Pen and marker stay.
void ground(Form1& form);
