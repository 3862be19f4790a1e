#pragma once

#include "canvas/form1.h"

#include <string_view>

namespace schemlet {

// Toolbar and toolbox: how they are filled, shown, hidden and moved. Their buttons stand in commands.cpp.

/// Fills toolbar and toolbox.
void addTools(Form1& form);

/// Brings the toolbar's buttons up to date: those of the tool in hand and of erase mode are pressed, those of colours
/// show them.
void showTools(Form1& form);

/// The mouse moved over a toolbar button, a toolbox picture, or the toolbox itself, away from the canvas (no name), or
/// what lay over the canvas has gone.
void hover(Form1& form, std::string_view name, Point place);

void lll(Form1& form);     ///< View > ToolBar
void toolbox(Form1& form); ///< View > ToolBox

/// The toolbar's button for the toolbox. Unlike the menu's command it flips the menu's mark on its own.
void toolBoxButton(Form1& form);

/// The toolbox's eraser.
void eraserPicture(Form1& form);

/// Shows or hides the toolbar.
void HideToolbar(Form1& form);

/// Gives the toolbox's ground a colour.
void colorToolbox(Form1& form, Color color);

/// Picks the toolbox up, or puts it down.
void Label1(Form1& form);

} // namespace schemlet
