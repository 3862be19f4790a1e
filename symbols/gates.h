#pragma once

#include "canvas/canvas_state.h"

// The two-input gates: bare outlines in the gates' colour, the pen leaves at the output. AND, OR, NOR and NAND draw
// to the right only, with a heading other than right nothing; EX-OR and EX-NOR draw to the right whatever the heading
// and leave the marker behind.
void and_(Form1& form);
void or_(Form1& form);
void nor(Form1& form);
void nand(Form1& form);
void exor(Form1& form);
void exnor(Form1& form);
