#include "platform/qt/fit_screen.h"

#include <QApplication>
#include <QFontInfo>
#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace schemlet {

QSize roomOnScreen(const QWidget& window)
{
    constexpr QSize frame(16, 48); // generous: window managers differ
    return window.screen()->availableSize() - frame;
}

void resizeOnScreen(QWidget& window, QSize size)
{
    window.resize(size.boundedTo(roomOnScreen(window)));
}

void fitFont(QWidget& window, int largest, int width)
{
    constexpr int smallest = 9; // still readable
    QFont font = QApplication::font();
    int size = QFontInfo(font).pixelSize();
    while (size > smallest && (size > largest || window.sizeHint().width() > width)) {
        font.setPixelSize(--size);
        window.setFont(font);
        for (QLayout* const layout : window.findChildren<QLayout*>()) {
            layout->invalidate(); // a hidden window's layouts do not notice the new font
        }
    }
}

void keepOnScreen(QWidget& window)
{
    const QRect screen = window.screen()->availableGeometry();
    const int below = window.frameGeometry().bottom() - screen.bottom();
    const int above = window.frameGeometry().top() - screen.top();
    if (const int up = std::min(below, above); up > 0) {
        window.move(window.pos() - QPoint(0, up));
    }
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
