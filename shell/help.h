#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The help window lists hints. It can slide open downwards to show a list of all shortcuts. Hiding it keeps its state.

/// The help window and its controls.
namespace form2 {
inline constexpr Name window = "Form2";

namespace control {
inline constexpr Name Check1 = "Check1";     ///< slides the window open and closed
inline constexpr Name Label23 = "Label23";   ///< does the same
inline constexpr Name Command1 = "Command1"; ///< closes
inline constexpr Name Timer2 = "Timer2";     ///< slides the window
} // namespace control

// Heights in twips
inline constexpr int collapsedHeight = 3210;
inline constexpr int openHeight = 5055; ///< shows the keys

/// Starts to slide a collapsed window open. Collapses any other window; if it was still sliding, it goes on sliding
/// open from the collapsed height.
void Check1(Form1& form);

/// Toggles the tick of Check1 and does the same as Check1.
void Label23(Form1& form);

/// One step of the sliding.
void Timer2(Form1& form);

/// Hides the window.
void Command1(Form1& form);

} // namespace form2

/// Shows the help window.
void htu(Form1& form);

/// Shows the help window at start, without giving it the focus.
void showHelpAtStart(Form1& form);

} // namespace schemlet
