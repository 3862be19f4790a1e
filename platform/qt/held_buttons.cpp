#include "platform/qt/held_buttons.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

namespace schemlet {

HeldButtons::HeldButtons(QWidget& canvas, std::function<void(Qt::MouseButton, QPointF)> released)
    : QObject(&canvas), m_canvas(canvas), m_released(std::move(released))
{
    QCoreApplication::instance()->installEventFilter(this);
}

void HeldButtons::press(const QMouseEvent& event)
{
    m_held |= event.button();
}

bool HeldButtons::eventFilter(QObject* watched, QEvent* event)
{
    // Any mouse event may be the first that shows that a button is up. If the button was released beside an open
    // dialog, the first sign is that the dialog closes.
    if ((m_held & ~QGuiApplication::mouseButtons()) != 0) {
        if (event->type() == QEvent::WindowUnblocked) {
            release(QCursor::pos());
        } else if (event->isSinglePointEvent()) {
            release(dynamic_cast<const QSinglePointEvent&>(*event).globalPosition());
        }
    }
    return QObject::eventFilter(watched, event);
}

void HeldButtons::release(QPointF place)
{
    const Qt::MouseButtons up = m_held & ~QGuiApplication::mouseButtons();
    m_held &= ~up;
    for (auto left = up.toInt(); left != 0; left &= left - 1) {
        m_released(static_cast<Qt::MouseButton>(left & -left), m_canvas.mapFromGlobal(place));
    }
}

} // namespace schemlet
