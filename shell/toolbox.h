#pragma once

#include "canvas/form1.h"

#include <string_view>

namespace schemlet {

// Toolbar and toolbox: how they are filled, shown, hidden and moved. Their buttons are listed in commands.cpp.

/// Fills toolbar and toolbox.
void addTools(Form1& form);

/// Updates the toolbar's buttons: the chosen tool and erase mode look pressed, the colour buttons show their colours.
void showTools(Form1& form);

/// Handles the mouse over a toolbar button, a toolbox picture, the toolbox itself or the canvas. Without a name, the
/// mouse has left the canvas.
void hover(Form1& form, std::string_view name, Point place);

void lll(Form1& form);     ///< View > ToolBar
void toolbox(Form1& form); ///< View > ToolBox

/// The toolbar's button for the toolbox. Unlike the menu's command, it toggles the menu's mark separately.
void toolBoxButton(Form1& form);

/// The toolbox's eraser.
void eraserPicture(Form1& form);

/// Shows or hides the toolbar.
void HideToolbar(Form1& form);

/// Sets the toolbox's background colour.
void colorToolbox(Form1& form, Color color);

/// Makes the toolbox follow the mouse, or stops it.
void Label1(Form1& form);

} // namespace schemlet
