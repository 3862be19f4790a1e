#pragma once

#include "canvas/canvas_state.h"

/// Triangles with one input, drawn along the heading; nothing is drawn for a heading other than right, left, up or
/// down. The pen leaves at or a little beyond the output, the marker goes with its left edge.
void buffer(Form1& form);
void notgate(Form1& form);

/// The operational amplifier, always pointing right. Pen and marker stay at the back of its triangle.
void opamp(Form1& form);
