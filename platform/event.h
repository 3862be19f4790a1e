#pragma once

#include "platform/window.h"

/// The keys that mean something on their way down; every other key reports 0.
namespace key {
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
} // namespace key

/// Characters of keys that do something in a control instead of typing.
namespace character {
inline constexpr int enter = 13;
inline constexpr int escape = 27;
} // namespace character

/// Mouse buttons: one of them for a press or a release, their sum for a move.
namespace button {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
} // namespace button

/// One thing the user or the clock did. All windows report through one function that takes these. A close is the user's
/// wish only: the window stays as it is until the program has decided.
struct Event {
    enum class Kind { keyDown, keyPress, mouseDown, mouseMove, mouseUp, click, hover, tick, close };

    Kind kind;
    Name window = mainWindow;
    Name name{};   ///< what was clicked, hovered over (none: the mouse left the canvas) or ticked; of a keyPress, the
                   ///< control that took it, none for the canvas
    int code = 0;  ///< keyDown: a key; keyPress: a UTF-16 unit of what was typed; mouse: button or buttons
    Point place{}; ///< mouse: where on the canvas
};
