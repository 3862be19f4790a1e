#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The help window lists hints and can slide open downwards, to a list of all short-cut keys. It is never destroyed: the
// next time it shows as it was left.

/// The help window and its controls.
namespace form2 {
inline constexpr Name window = "Form2";

namespace control {
inline constexpr Name Check1 = "Check1";     ///< slides the window open and closed
inline constexpr Name Label23 = "Label23";   ///< does the same
inline constexpr Name Command1 = "Command1"; ///< closes
inline constexpr Name Timer2 = "Timer2";     ///< the sliding
} // namespace control

// Heights in twips
inline constexpr int collapsedHeight = 3210;
inline constexpr int openHeight = 5055; ///< shows the keys

/// Collapses the window unless it is collapsed, else starts to slide it open. A slide that is under way goes on from
/// the collapsed height, so a click in the middle of it makes the window open anew.
void Check1(Form1& form);

/// Ticks Check1 or takes its tick away, and does what it does.
void Label23(Form1& form);

/// One step of the sliding.
void Timer2(Form1& form);

/// Hides the window.
void Command1(Form1& form);

} // namespace form2

/// Shows the help window.
void htu(Form1& form);

/// Shows the help window at start, when nobody asked for it: the keyboard stays where it is.
void showHelpAtStart(Form1& form);

} // namespace schemlet
