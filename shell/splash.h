#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The splash stands alone for a second, fills its bar in another one and makes way for the main window.

/// The splash and its controls.
namespace form6 {
inline constexpr Name window = "Form6";

namespace control {
inline constexpr Name Picture1 = "Picture1"; ///< what the program can draw
inline constexpr Name ProgressBar1 = "ProgressBar1";
inline constexpr Name Timer1 = "Timer1"; ///< waits for the bar to start
inline constexpr Name Timer2 = "Timer2"; ///< moves the bar
} // namespace control

/// Shows the splash and starts its clock. Needs no other window, so that it can be the first thing to be seen.
void load(Window& splash);

void Timer1(Form1& form);

/// One step of the bar; the step after the last one opens the main window.
void Timer2(Form1& form);

/// Opens the main window at once and ends the splash.
void finish(Form1& form);

} // namespace form6

} // namespace schemlet
