#pragma once

#include "canvas/canvas_state.h"

/// Fills the main window, loads its state, shows it and starts its timer. Once, at start.
void openMainWindow(Form1& form);

/// Shows the help window once, a moment after the main window.
void Timer1(Form1& form);

/// Brings what shows the state up to date: the status bar's panels behind the hint (pen, heading, tool in hand, erase
/// mode), the canvas's description, which tells the same to a screen reader, and the pointer over the canvas.
void showStatus(Form1& form);

/// The same a moment later, once for all events until then: ink comes first, and nobody reads faster.
void showStatusSoon(Form1& form);
