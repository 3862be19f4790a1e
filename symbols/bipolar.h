#pragma once

#include "canvas/canvas_state.h"

// Bipolar transistors with the ground that their circuit ties them to, drawn the same way whatever the heading, in the
// colour they share with the transformers. The marker goes with its left edge.

// NPN
void emitter(Form1& form);
void base(Form1& form);
void collector(Form1& form);

// PNP
void emitter1(Form1& form);
void base1(Form1& form);
/// Draws exactly what collector() draws.
void collector1(Form1& form);
