#pragma once

#include "canvas/canvas_state.h"

// Junction field-effect transistors hanging down from the pen, whatever the heading, in the colour of the transistors.
// The marker stays.
void nchannel(Form1& form);
void pchannel(Form1& form);
