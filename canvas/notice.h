#pragma once

#include "canvas/form1.h"
#include "platform/runtime_error.h"

namespace schemlet {

/// The program's name in the titles of its windows and dialogs.
inline constexpr std::string_view productName = "Schemlet 2.0";

inline constexpr std::string_view noDirection = "Nothing drawn: no direction";
/// For a component with a value, which is added to the total anyway.
inline constexpr std::string_view countedOnly = "Counted but not drawn: no direction";

/// Shows a notice in the status bar for some seconds. It says why a command did nothing or only a part of its work, or
/// confirms a command. A narrow window has room for about 40 letters.
void notify(Form1& form, std::string_view text);

/// Ends the notice in the state. The next update of the status bar removes it from there.
void forgetNotice(Form1& form);

/// Shows an error in a message box.
void showError(Form1& form, const RuntimeError& error);

} // namespace schemlet
