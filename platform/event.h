#pragma once

#include "platform/name.h"
#include "platform/surface.h"

#include <string_view>

namespace schemlet {

/// The codes of the keys that act when they go down; every other key reports 0.
namespace key {
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
} // namespace key

/// Mouse buttons: one of them for a press or a release, their sum for a move.
namespace button {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
} // namespace button

/// One thing that the user or the clock did. All windows report through one function that takes these. Keys and mouse
/// are the canvas's; everything else happened to something that has a name. Enter in a text box is a click on the
/// button that it stands for, Esc in the panel a click on the panel. A close is a wish only: the window stays as it is
/// until the program has decided.
struct Event {
    enum class Kind { keyDown, keyPress, mouseDown, mouseMove, mouseUp, click, hover, tick, close };

    Kind kind;
    std::string_view window = mainWindow.text();
    /// What was clicked, ticked or hovered over. None: the mouse is not over the canvas; the canvas: it is there again
    /// and has not moved.
    std::string_view name{};
    int code = 0;  ///< keyDown: a key; keyPress: a UTF-16 unit of what was typed; mouse: button or buttons
    Point place{}; ///< mouse, hover over the canvas: where on it
};

} // namespace schemlet
