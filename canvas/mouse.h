#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The mouse on the canvas. Places are in twips, buttons as in platform/event.h.

/// The left button moves the pen to the place, the right one opens the popup menu there.
void mouseDown(Form1& form, int button, Point place);
/// While only the left button is held, the pencil draws, and then erase mode erases.
void mouseMove(Form1& form, int buttons, Point place);
/// Any button marks the drawing as changed. The left one moves the marker, and draws the line or the rectangle from the
/// surface's current point.
void mouseUp(Form1& form, int button, Point place);

/// Opens the popup menu at the pen, for the keyboard.
void popUpAtPen(Form1& form);

// Tool commands. At most one tool is chosen. It stays chosen until another one is, except that Open puts the pencil
// away.
void linee(Form1& form);
void rectan(Form1& form);
void pencil1(Form1& form);
void eraser(Form1& form);

} // namespace schemlet
