#pragma once

#include "canvas/canvas_state.h"

/// Fills the main window, loads its state, shows it and starts its timers. Once, at start.
void openMainWindow(Form1& form);

/// Shows the help window once, a moment after the main window.
void Timer1(Form1& form);
