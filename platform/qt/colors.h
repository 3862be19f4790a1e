#pragma once

#include "platform/surface.h"

#include <QColor>
#include <QPalette>

namespace schemlet {

// The core's colours have red in the lowest byte, Qt's have blue there.

[[nodiscard]] QColor toQColor(Color color);
[[nodiscard]] Color toColor(const QColor& color);

/// All colours of a control that lies on this ground: its texts have at least 4.5 to 1, and its fields and buttons
/// stand out, whatever the desktop's colours are.
[[nodiscard]] QPalette paletteOn(const QColor& ground);

} // namespace schemlet
