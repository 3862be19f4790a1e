#pragma once

#include "canvas/canvas_state.h"

#include <span>

/// One row of the menu tree.
struct Command {
    int depth = 0; ///< 0 on the bar; each further depth lies under the row above it
    MenuItem item;
    Handler handler = nullptr; ///< none: a submenu or a separator
};

/// What a control or a timer of one of the windows does, or a window's frame, which has no name.
struct NamedHandler {
    Name window;
    Name name;
    Handler handler = nullptr;
};

/// None if no row has these names.
[[nodiscard]] Handler findHandler(std::span<const NamedHandler> rows, Name window, Name name);

/// Builds the main window's menus, the popup menu included.
void addMenus(Form1& form);

/// Runs the command of a menu item or of a control in one of the windows.
void runCommand(Form1& form, Name window, Name name);
