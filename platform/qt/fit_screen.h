#pragma once

#include <QRect>
#include <QSize>

class QWidget;

namespace schemlet {

/// The largest size of a window inside its frame that fits on its screen.
[[nodiscard]] QSize roomOnScreen(const QWidget& window);

/// Resizes a window to this size, in unscaled pixels, or to as much of it as fits on its screen.
void resizeOnScreen(QWidget& window, QSize size);

/// Gives a window the desktop's font, but reduces its size to at most this many pixels, and further while the window
/// would be wider than this.
void fitFont(QWidget& window, int largest, int width);

/// Moves a window up if it extends below its screen, as far as there is room above it.
void keepOnScreen(QWidget& window);

/// The place for a second window of this size, all frames included: below, beside or above the main window, in the
/// first of these places where it fits on the screen. If it fits in none, it lies along the lower edge of the main
/// window's canvas.
[[nodiscard]] QPoint placeBeside(QSize size, const QRect& mainWindow, const QRect& canvas, const QRect& screen);

} // namespace schemlet
