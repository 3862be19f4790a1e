#pragma once

#include "canvas/form1.h"

namespace schemlet {

inline constexpr int stepLength = 50; ///< the wire of one arrow key, in twips

/// Draws a step of wire along the heading, in the foreground colour, and moves the pen to its end. Does nothing if
/// the heading is no direction.
void layStep(Surface& surface, Pen& pen);

/// Whether an arrow key that moved the pen like this drew a jumper, too.
[[nodiscard]] bool hopped(const Pen& from, const Pen& to);

/// Handles a pressed key; codes as in platform/event.h. Any key marks the drawing as changed. An arrow key turns the
/// pen and, outside erase mode, draws a step of wire.
void keyDown(Form1& form, int code);

/// Toggles erase mode. The pen's width (2 or 10 pixels), the mode and the label are each toggled by themselves.
void eraser1(Form1& form);

/// The J key: toggles automatic jumpers but not the mark of their menu item.
void toggleAutoJumper(Form1& form);

/// The menu item for automatic jumpers: toggles the setting and the mark. After the J key the two disagree.
void jj(Form1& form);

} // namespace schemlet
