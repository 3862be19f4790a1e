#pragma once

#include "canvas/canvas_state.h"

#include <span>

// Toolbar and toolbox: the tables of their buttons, and how they are shown, hidden and moved.

/// A button of the toolbox, with a picture of what it draws.
struct ToolPicture {
    Name name;
    std::string_view hint; ///< for the status bar
    Handler handler;
    void (*draw)(Surface&) = nullptr; ///< none: the form has its picture
};

[[nodiscard]] std::span<const ToolPicture> toolboxPictures();

/// Fills toolbar and toolbox.
void addTools(Form1& form);

/// The command of a toolbar button or a toolbox picture; none for any other name.
[[nodiscard]] Handler toolHandler(Name name);

/// Brings the toolbar's buttons up to date: those of the tool in hand and of erase mode are pressed, those of colours
/// show them.
void showTools(Form1& form);

/// The mouse moved over a toolbar button, a toolbox picture, or the toolbox itself; no name: away from the canvas.
void hover(Form1& form, Name name);

void lll(Form1& form);     ///< View > ToolBar
void toolbox(Form1& form); ///< View > ToolBox

/// Shows or hides the toolbar.
void HideToolbar(Form1& form);

/// Picks the toolbox up, or puts it down.
void Label1(Form1& form);
