#include "platform/qt/fit_screen.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace schemlet {

void resizeOnScreen(QWidget& window, QSize size)
{
    constexpr QSize frame(16, 48); // generous: window managers differ
    window.resize(size.boundedTo(window.screen()->availableSize() - frame));
}

QPoint placeBeside(QSize size, const QRect& mainWindow, const QRect& canvas, const QRect& screen)
{
    const QPoint last = screen.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    const int x = std::max(screen.left(), std::min(mainWindow.left(), last.x()));
    const int y = std::max(screen.top(), std::min(mainWindow.top(), last.y()));
    const QRect places[] = {{{x, mainWindow.bottom() + 1}, size},
                            {{mainWindow.right() + 1, y}, size},
                            {{mainWindow.left() - size.width(), y}, size},
                            {{x, mainWindow.top() - size.height()}, size}};
    const auto* const free = std::ranges::find_if(places, [&](const QRect& each) { return screen.contains(each); });
    if (free != std::end(places)) {
        return free->topLeft();
    }
    return {x, std::max(screen.top(), std::min(canvas.bottom() + 1 - size.height(), last.y()))};
}

} // namespace schemlet
