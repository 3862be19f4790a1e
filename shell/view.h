#pragma once

#include "canvas/canvas_state.h"

/// Fills the main window, loads its state, shows it and starts its timer. Once, at start.
void openMainWindow(Form1& form);

/// Brings the status bar's panels behind the hint up to date: pen, heading, tool in hand, erase mode.
void showStatus(const Form1& form);
