#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The splash is visible for a second, then its bar fills in another second, and then the main window opens.

/// The splash and its controls.
namespace form6 {
inline constexpr Name window = "Form6";

namespace control {
inline constexpr Name Picture1 = "Picture1"; ///< what the program can draw
inline constexpr Name ProgressBar1 = "ProgressBar1";
inline constexpr Name Timer1 = "Timer1"; ///< waits for the bar to start
inline constexpr Name Timer2 = "Timer2"; ///< moves the bar
} // namespace control

/// Shows the splash and starts its timer. Needs no other window, so that the splash can be shown first.
void load(Window& splash);

void Timer1(Form1& form);

/// Moves the bar by a step, or opens the main window if the bar is full.
void Timer2(Form1& form);

/// Opens the main window at once and closes the splash.
void finish(Form1& form);

} // namespace form6

} // namespace schemlet
