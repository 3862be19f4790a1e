#pragma once

#include <QRect>
#include <QSize>

class QWidget;

namespace schemlet {

/// Gives a window this size, in unscaled pixels, or as much of it as its screen has room for.
void resizeOnScreen(QWidget& window, QSize size);

/// Where a second window of this size lies best, all frames included: below the main window, beside it or above it,
/// wherever the screen has room for it, else along the lower edge of the main window's canvas.
[[nodiscard]] QPoint placeBeside(QSize size, const QRect& mainWindow, const QRect& canvas, const QRect& screen);

} // namespace schemlet
