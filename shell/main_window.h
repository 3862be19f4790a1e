#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Gives the main window the state of a new drawing: title, canvas, panel of sources, and the values of the Output
/// window, which is not shown.
void load(Form1& form);

/// Fills the main window, loads its state, shows it and starts its timers. Called once, at start.
void openMainWindow(Form1& form);

/// Shows the help window once, a moment after the main window.
void Timer1(Form1& form);

} // namespace schemlet
