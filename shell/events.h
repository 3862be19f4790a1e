#pragma once

#include "canvas/canvas_state.h"
#include "platform/event.h"

/// The one way in: hands an event of any window to its handler and lets the status bar follow. What goes wrong on
/// the way through no fault of the program is told in a message box.
void deliver(Form1& form, const Event& event);
