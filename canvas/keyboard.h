#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Handles a pressed key; codes as in platform/event.h. Any key marks the drawing as changed. An arrow key turns the
/// pen and, outside erase mode, draws a step of wire.
void keyDown(Form1& form, int code);

/// Turns the pen without drawing, as an arrow key does in erase mode.
void turn(Form1& form, int heading);

template <int heading> void turn(Form1& form)
{
    turn(form, heading);
}

/// Toggles erase mode. The pen's width (2 or 10 pixels), the mode and the label are each toggled by themselves.
void eraser1(Form1& form);

/// The J key: toggles automatic jumpers but not the mark of their menu item.
void toggleAutoJumper(Form1& form);

/// The menu item for automatic jumpers: toggles the setting and the mark. After the J key the two disagree.
void jj(Form1& form);

} // namespace schemlet
