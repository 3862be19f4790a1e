#pragma once

#include "canvas/canvas_state.h"

// Electrical machines, whatever the heading: motors, generators and the armature downwards from the pen, the field
// winding to the right. The colour stays their family's, the marker stays where it was.
void acmotor(Form1& form);
void dcmotor(Form1& form);
void acgenerator(Form1& form);
void dcgenerator(Form1& form);
void armature(Form1& form);
void field(Form1& form);
