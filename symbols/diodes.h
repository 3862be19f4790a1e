#pragma once

#include "canvas/canvas_state.h"

// Diodes in the diodes' colour. The foreground is black afterwards, but for a PN diode after an answered question. The
// marker stays. PN and NP diodes are counted, also when the heading lets them draw nothing.

/// The Zener diode, always to the right.
void diode(Form1& form);
/// The PN diode, along the heading.
void diod(Form1& form);
/// The NP diode, along the heading, its bar first.
void npdiode(Form1& form);
/// The tunnel diode, always downwards.
void tunneldiode(Form1& form);
