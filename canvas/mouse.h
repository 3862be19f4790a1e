#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Mouse on the canvas; places in twips, buttons as in platform/event.h. A press of the left button puts the pen, a
/// press of the right one opens the popup menu.
void mouseDown(Form1& form, int button, Point place);
/// With the left button alone held: the pencil draws, erase mode erases, in this order.
void mouseMove(Form1& form, int buttons, Point place);
/// Any button marks the drawing changed. The left one brings the marker, and draws the line or the rectangle from where
/// it went down.
void mouseUp(Form1& form, int button, Point place);

/// The popup menu for who has no mouse at hand.
void popUpAtPen(Form1& form);

// Tool commands. At most one tool is on; once one is chosen, only Open puts one away, the pencil.
void linee(Form1& form);
void rectan(Form1& form);
void pencil1(Form1& form);
void eraser(Form1& form);

} // namespace schemlet
