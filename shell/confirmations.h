#pragma once

#include "canvas/form1.h"

#include <array>

namespace schemlet {

/// The menu items of the confirmation switches, in the order of the switches.
inline constexpr std::array<Name, confirmCount> confirmItems = {"m",     "g",   "tr", "aar", "f",       "pnpt",  "npnt",
                                                                "jfett", "thy", "gg", "dii", "buffer1", "opamp1"};

/// Toggles a family's switch, and separately the mark of its menu item.
template <Confirm family> void toggleConfirm(Form1& form)
{
    form.confirm[family] = form.confirm[family] == 1 ? 0 : 1;
    form.window.flipChecked(confirmItems[family]);
}

} // namespace schemlet
