#pragma once

#include "canvas/canvas_state.h"

/// One row of the menu tree.
struct Command {
    int depth = 0; ///< 0 on the bar; each further depth lies under the row above it
    MenuItem item;
    Handler handler = nullptr; ///< none: a submenu or a separator
};

/// Builds the main window's menus, the popup menu included.
void addMenus(Form1& form);

/// Runs the command of a menu item or of a control in one of the windows.
void runCommand(Form1& form, Name window, Name name);
