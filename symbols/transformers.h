#pragma once

#include "canvas/canvas_state.h"

// Transformers, always hanging down and to the right of the pen, in the colour they share with the transistors. Pen and
// marker stay.
void singlephase(Form1& form);
void centertapped(Form1& form);
