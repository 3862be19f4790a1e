#pragma once

#include "canvas/form1.h"

#include "platform/event.h"

#include <span>
#include <string>
#include <string_view>

namespace schemlet {

// Every way to a command stands in a table of commands.cpp: menus and popup menu, toolbar, toolbox, letters, buttons
// and labels of all windows.

/// A button of the toolbar; without a name it is a separator.
struct ToolButton {
    Name name;
    std::string_view tip;
    std::string_view hint; ///< for the status bar
    Handler handler = nullptr;
    int CanvasState::*pressed = nullptr;  ///< the switch that it shows, if any
    Color CanvasState::*swatch = nullptr; ///< the colour that it shows, if any
};

/// A button of the toolbox, with a picture of what it draws.
struct ToolPicture {
    Name name;
    std::string_view hint; ///< for the status bar
    Handler handler = nullptr;
    void (*draw)(Surface&) = nullptr; ///< none: the form has its picture
};

[[nodiscard]] std::span<const ToolButton> toolbarButtons();
[[nodiscard]] std::span<const ToolPicture> toolboxPictures();

/// Builds the main window's menus, the popup menu included, and the keys of what no menu has.
void addMenus(Form1& form);

/// What a control or a timer of one of the windows does, or a window's frame, which has no name.
struct NamedHandler {
    Name window;
    Name name;
    Handler handler = nullptr;
};

/// Runs the row with these names; does nothing if there is none.
void runRow(Form1& form, std::span<const NamedHandler> rows, std::string_view window, std::string_view name);

/// Runs the command of what was clicked in one of the windows. Does nothing for a name without a command.
void runCommand(Form1& form, std::string_view window, std::string_view name);

/// Of what was clicked, or of a typed letter; null if it has none.
[[nodiscard]] Handler commandOf(const Event& event);

/// The caption of a command's menu item, without & and outer blanks; empty if it has none.
[[nodiscard]] std::string captionOf(Handler command);

/// A typed character, a UTF-16 unit: runs the command of its letter, capital or small. Any character marks the drawing
/// changed.
void keyPress(Form1& form, int character);

} // namespace schemlet
