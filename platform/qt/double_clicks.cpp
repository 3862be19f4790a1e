#include "platform/qt/double_clicks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>

namespace schemlet {

DoubleClicks::DoubleClicks(QWidget& canvas) : QObject(&canvas), m_canvas(canvas)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool DoubleClicks::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDouble = event->type() == QEvent::MouseButtonDblClick;
    if ((!isDouble && event->type() != QEvent::MouseButtonPress) || !watched->isWidgetType()) {
        return QObject::eventFilter(watched, event);
    }
    QObject* target = watched;
    if (qobject_cast<const QMenu*>(watched) != nullptr) {
        target = QApplication::widgetAt(dynamic_cast<const QMouseEvent&>(*event).globalPosition().toPoint());
    }
    const QObject* const before = m_pressed;
    m_pressed = target;
    return isDouble && target == watched && target != before && guards(*target);
}

bool DoubleClicks::guards(const QObject& target) const
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&target);
    return &target == &m_canvas || (button != nullptr && button->window() == m_canvas.window());
}

} // namespace schemlet
