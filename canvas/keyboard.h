#pragma once

#include "canvas/form1.h"

namespace schemlet {

inline constexpr int stepLength = 50; ///< twips of wire for each arrow key

/// Lays a step of wire along the heading, in the foreground colour, and moves the pen to its end. Does nothing if
/// the heading is no direction.
void layStep(Surface& surface, Pen& pen);

/// Handles a key that goes down; codes as in platform/event.h. Any key marks the drawing changed. An arrow key turns
/// the pen and, outside erase mode, lays a step of wire.
void keyDown(Form1& form, int code);

/// Switches erase mode: pen width (2 or 10 pixels), mode and label flip each from its own state.
void eraser1(Form1& form);

/// The J key: switches automatic jumpers and leaves the menu's mark as it is.
void toggleAutoJumper(Form1& form);

/// The menu item for automatic jumpers: flips the setting and its own mark, which may disagree after the J key.
void jj(Form1& form);

} // namespace schemlet
