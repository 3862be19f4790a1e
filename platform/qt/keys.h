#pragma once

#include <QKeyEvent>
#include <optional>

namespace schemlet {

/// What a Qt key event means to the program.
namespace keys {

/// Whether this is a key that only changes the meaning of others (Shift, Ctrl, Alt, ...).
[[nodiscard]] bool isModifier(const QKeyEvent& event);

/// The code of a pressed key, as in platform/event.h.
[[nodiscard]] int code(const QKeyEvent& event);

/// The character that a key types, as a UTF-16 unit. None if the key types nothing or Ctrl or Alt is held.
[[nodiscard]] std::optional<int> character(const QKeyEvent& event);

} // namespace keys

} // namespace schemlet
