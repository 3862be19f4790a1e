#pragma once

#include "platform/surface.h"

#include <QColor>

// The core's colours have red in the lowest byte, Qt's have blue there.

[[nodiscard]] QColor toQColor(Color color);
[[nodiscard]] Color toColor(const QColor& color);

/// Black or white, whichever stands out more: at least 4.5 to 1 on every ground.
[[nodiscard]] QColor readableOn(const QColor& ground);
