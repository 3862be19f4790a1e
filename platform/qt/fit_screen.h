#pragma once

#include <QRect>
#include <QSize>

class QWidget;

namespace schemlet {

/// The room that a window has on its screen inside its frame.
[[nodiscard]] QSize roomOnScreen(const QWidget& window);

/// Gives a window this size, in unscaled pixels, or as much of it as its screen has room for.
void resizeOnScreen(QWidget& window, QSize size);

/// Gives a window the desktop's font, but none larger than this, in pixels, and none that makes it wider than this.
void fitFont(QWidget& window, int largest, int width);

/// Moves a window that has grown up from its screen's lower edge, as far as there is room above.
void keepOnScreen(QWidget& window);

/// Where a second window of this size lies best, all frames included: below the main window, beside it or above it,
/// wherever the screen has room for it, else along the lower edge of the main window's canvas.
[[nodiscard]] QPoint placeBeside(QSize size, const QRect& mainWindow, const QRect& canvas, const QRect& screen);

} // namespace schemlet
