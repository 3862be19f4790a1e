#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Gives the main window its state at start: title, canvas, source panel, and the Output window's values, computed from
/// zeros without showing it.
void load(Form1& form);

/// Fills the main window, loads its state, shows it and starts its timers. Once, at start.
void openMainWindow(Form1& form);

/// Shows the help window once, a moment after the main window.
void Timer1(Form1& form);

} // namespace schemlet
