#pragma once

#include "canvas/form1.h"

#include "platform/event.h"

#include <span>
#include <string>
#include <string_view>

namespace schemlet {

// The tables in commands.cpp list every way to a command: menus and popup menu, toolbar, toolbox, letters, other keys,
// and the buttons and labels of all windows.

/// A button of the toolbar; without a name it is a separator.
struct ToolButton {
    Name name;
    std::string_view tip;
    std::string_view hint; ///< for the status bar
    Handler handler = nullptr;
    int CanvasState::*pressed = nullptr;  ///< the button looks pressed while this is 1
    Color CanvasState::*swatch = nullptr; ///< the button shows this colour
};

/// A button of the toolbox, with a picture of what it draws.
struct ToolPicture {
    Name name;
    std::string_view hint; ///< for the status bar
    Handler handler = nullptr;
    void (*draw)(Surface&) = nullptr; ///< null if the form has the picture
};

[[nodiscard]] std::span<const ToolButton> toolbarButtons();
[[nodiscard]] std::span<const ToolPicture> toolboxPictures();

/// Builds the main window's menus, the popup menu, and the keys of the commands that are in no menu.
void addMenus(Form1& form);

/// The handler of a window's control or timer, or of its close button, which has no name.
struct NamedHandler {
    Name window;
    Name name;
    Handler handler = nullptr;
};

/// Runs the row with these names; does nothing if there is none.
void runRow(Form1& form, std::span<const NamedHandler> rows, std::string_view window, std::string_view name);

/// Runs the command of a clicked control. Does nothing for a name without a command.
void runCommand(Form1& form, std::string_view window, std::string_view name);

/// The command of a click or of a typed letter; null if there is none.
[[nodiscard]] Handler commandOf(const Event& event);

/// What a step of a command is called: the caption of its menu item without the &, or a name of its own. Empty if it
/// makes no steps.
[[nodiscard]] std::string captionOf(Handler command);

/// Handles a typed character, a UTF-16 unit. A capital or small letter runs its command. Any character marks the
/// drawing as changed.
void keyPress(Form1& form, int character);

} // namespace schemlet
