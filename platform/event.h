#pragma once

#include "platform/name.h"
#include "platform/surface.h"

#include <string_view>

namespace schemlet {

/// The codes of the arrow keys. Every other key has the code 0.
namespace key {
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
} // namespace key

/// The codes of mouse buttons. A press or a release has one of them, a move the sum of the held ones.
namespace button {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
} // namespace button

/// One thing that the user or a timer did. Keys and mouse events belong to the canvas; all others carry a name. Enter
/// in a text box is a click on the box's button, and Esc in the panel is a click on the panel. A close is only a
/// request: the window stays open until the program closes it.
struct Event {
    enum class Kind { keyDown, keyPress, mouseDown, mouseMove, mouseUp, click, hover, tick, close };

    Kind kind;
    std::string_view window = mainWindow.text();
    /// The control, menu item or timer of a click, hover or tick. A hover without a name means that the mouse has left
    /// the canvas; a hover with the canvas's name means that the mouse is over it without having moved.
    std::string_view name{};
    int code = 0;  ///< keyDown: a key; keyPress: a UTF-16 unit of the typed text; mouse events: buttons
    Point place{}; ///< mouse events, and hover over the canvas: the mouse's place on the canvas
};

} // namespace schemlet
