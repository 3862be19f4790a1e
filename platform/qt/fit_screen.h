#pragma once

#include <QScreen>
#include <QWidget>

/// Gives a window this size, in unscaled pixels, or as much of it as its screen has room for.
inline void resizeOnScreen(QWidget& window, QSize size)
{
    constexpr QSize frame(16, 48); // generous: window managers differ
    window.resize(size.boundedTo(window.screen()->availableSize() - frame));
}
