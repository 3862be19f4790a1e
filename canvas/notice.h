#pragma once

#include "canvas/form1.h"
#include "platform/runtime_error.h"

namespace schemlet {

/// Names the program in the titles of its windows and boxes.
inline constexpr std::string_view productName = "Schemlet 2.0";

inline constexpr std::string_view noDirection = "Nothing drawn: no direction";
/// Of what has a value, which is in the totals all the same.
inline constexpr std::string_view countedOnly = "Counted but not drawn: no direction";

/// Says in the status bar for some seconds why a command did nothing, or not all of it, where the canvas does not show
/// it. In a few words: a narrow window has room for about 40 letters.
void notify(Form1& form, std::string_view text);

/// Ends it. The status bar follows.
void forgetNotice(Form1& form);

/// Tells the user in a message box what went wrong.
void tell(Form1& form, const RuntimeError& error);

} // namespace schemlet
