#include "platform/qt/held_buttons.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QStyleHints>
#include <utility>

namespace schemlet {

HeldButtons::HeldButtons(QWidget& canvas, std::function<void(Qt::MouseButton, QPointF)> released)
    : QObject(&canvas), m_canvas(canvas), m_released(std::move(released))
{
    QCoreApplication::instance()->installEventFilter(this);
}

void HeldButtons::press(const QMouseEvent& event)
{
    m_lastPress = event.timestamp();
    m_held |= event.button();
}

bool HeldButtons::isSecondOfAPressElsewhere(const QMouseEvent& doubleClick) const
{
    const auto interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    return doubleClick.timestamp() > m_lastPress + interval;
}

bool HeldButtons::eventFilter(QObject* watched, QEvent* event)
{
    if (m_held != Qt::NoButton) {
        // Whatever tells first that a button is up, release or not. While a box is open and the mouse beside it, that
        // is the end of the box.
        if (event->type() == QEvent::WindowUnblocked) {
            release(QCursor::pos());
        } else if (const auto* const pointing = dynamic_cast<const QSinglePointEvent*>(event)) {
            release(pointing->globalPosition());
        }
    }
    if (onlyClosesAMenu(*watched, *event)) {
        m_lastPress = dynamic_cast<const QMouseEvent&>(*event).timestamp();
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

/// A press on the canvas beside an open menu. The menu takes it, but a second press soon after is meant for the canvas.
bool HeldButtons::onlyClosesAMenu(const QObject& watched, const QEvent& event) const
{
    return (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick) &&
           qobject_cast<const QMenu*>(&watched) != nullptr &&
           QApplication::widgetAt(dynamic_cast<const QMouseEvent&>(event).globalPosition().toPoint()) == &m_canvas;
}

} // namespace schemlet
