#pragma once

#include "platform/surface.h"

#include <QColor>

// The core's colours have red in the lowest byte, Qt's have blue there.

[[nodiscard]] QColor toQColor(Color color);
[[nodiscard]] Color toColor(const QColor& color);

/// Black or white, whichever has at least 4.5 to 1 on this ground, the style's shading of it included.
[[nodiscard]] QColor readableOn(const QColor& ground);
