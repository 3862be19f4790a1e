#pragma once

#include <QKeyEvent>
#include <optional>

namespace schemlet {

/// What a Qt key event is to the program.
namespace keys {

/// Whether this key alone only changes what others mean (Shift, Ctrl, Alt, ...).
[[nodiscard]] bool isModifier(const QKeyEvent& event);

/// The code of a key on its way down, as in platform/event.h.
[[nodiscard]] int code(const QKeyEvent& event);

/// The character that a key types, a UTF-16 unit; none for a key that types nothing or is held with Ctrl or Alt.
[[nodiscard]] std::optional<int> character(const QKeyEvent& event);

} // namespace keys

} // namespace schemlet
