#pragma once

#include "canvas/canvas_state.h"
#include "platform/event.h"

/// The one way in: hands an event of any window to its handler and lets the status bar follow. What goes wrong on
/// the way through no fault of the program is told in a message box. What comes while a handler has not returned waits
/// for its turn, but for ticks: on a slow machine the keys after a box's Enter come before the box has told its answer.
void deliver(Form1& form, const Event& event);
