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

/// Runs the command of the menu item with this name.
void runCommand(Form1& form, Name item);
