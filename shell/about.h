#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// The about window and its controls.
namespace form3 {
inline constexpr Name window = "Form3";

namespace control {
inline constexpr Name Picture1 = "Picture1"; ///< what the program can draw
inline constexpr Name Command1 = "Command1"; ///< Ok
inline constexpr Name Command2 = "Command2"; ///< Cancel; does the same as Ok
} // namespace control

/// Hides the window.
void Command1(Form1& form);

} // namespace form3

/// Shows who made this program.
void about(Form1& form);

} // namespace schemlet
