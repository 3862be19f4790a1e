#pragma once

#include "platform/surface.h"

#include <QColor>
#include <QPalette>

namespace schemlet {

// The core's colours have red in the lowest byte; Qt's have blue there.

[[nodiscard]] QColor toQColor(Color color);
[[nodiscard]] Color toColor(const QColor& color);

/// From 1 (equal luminance) to 21 (black and white), as the web's contrast guidelines define it.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// All colours of a control on a ground of this colour. Texts have a contrast of at least 4.5 to 1, and fields and
/// buttons stand out, with any colours of the desktop.
[[nodiscard]] QPalette paletteOn(const QColor& ground);

} // namespace schemlet
