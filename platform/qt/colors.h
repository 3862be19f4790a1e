#pragma once

#include "platform/surface.h"

#include <QColor>

// The core's colours have red in the lowest byte, Qt's have blue there.

inline QColor toQColor(Color color)
{
    return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

inline Color toColor(const QColor& color)
{
    return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}
