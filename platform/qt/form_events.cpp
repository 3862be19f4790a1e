#include "platform/qt/form_events.h"

#include "platform/qt/keys.h"

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <algorithm>

namespace {

/// As arrow keys do not move in a group of options, Tab must; the toolkit leaves it only the option with the focus.
void letTabReachOptions(const QWidget& button)
{
    for (auto* const option : button.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        option->setFocusPolicy(Qt::StrongFocus);
    }
}

/// With a button held a widget gets moves beside it too, and those that its children leave alone.
bool isOver(const QWidget& widget, QPoint place)
{
    return widget.rect().contains(place) && widget.childAt(place) == nullptr;
}

} // namespace

CloseWish::CloseWish(QWidget& window, std::function<void()> wished) : QObject(&window), m_wished(std::move(wished))
{
    window.installEventFilter(this);
}

bool CloseWish::eventFilter(QObject* watched, QEvent* event)
{
    const bool escape = event->type() == QEvent::KeyPress && qobject_cast<const QDialog*>(watched) != nullptr &&
                        dynamic_cast<const QKeyEvent&>(*event).matches(QKeySequence::Cancel);
    if (!escape && event->type() != QEvent::Close) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    m_wished();
    return true;
}

LabelClick::LabelClick(QLabel& label, std::function<void()> clicked)
    : QObject(&label), m_label(label), m_clicked(std::move(clicked))
{
    label.installEventFilter(this);
}

bool LabelClick::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = dynamic_cast<const QMouseEvent&>(*event);
        if (release.button() == Qt::LeftButton && m_label.rect().contains(release.position().toPoint())) {
            m_clicked();
        }
    }
    return QObject::eventFilter(watched, event);
}

Hovering::Hovering(QWidget& frame, std::function<void(const QWidget&)> hovered)
    : QObject(&frame), m_frame(frame), m_hovered(std::move(hovered))
{
    QList<QWidget*> widgets = frame.findChildren<QWidget*>();
    widgets.push_back(&frame);
    for (QWidget* const widget : widgets) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
}

bool Hovering::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove: {
        const auto& move = dynamic_cast<const QMouseEvent&>(*event);
        const auto& widget = dynamic_cast<const QWidget&>(*watched);
        if (isOver(widget, move.position().toPoint())) {
            m_hovered(widget);
        }
        if (move.buttons() == Qt::NoButton) {
            return true;
        }
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: break;
    default: return QObject::eventFilter(watched, event);
    }
    return watched == &m_frame; // what its controls leave alone goes no further than the frame
}

StayInside::StayInside(QWidget& control) : QObject(&control), m_control(control)
{
    control.installEventFilter(this); // it grows when its layout is done
    control.parentWidget()->installEventFilter(this);
}

bool StayInside::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        const QSize room = m_control.parentWidget()->size() - m_control.size();
        const QPoint place = m_control.pos();
        m_control.move(std::max(0, std::min(place.x(), room.width())), std::max(0, std::min(place.y(), room.height())));
    }
    return QObject::eventFilter(watched, event);
}

KeyDetour::KeyDetour(QWidget& button, QWidget& canvas) : QObject(&button), m_canvas(canvas)
{
    button.installEventFilter(this);
}

bool KeyDetour::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto& key = dynamic_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) {
            letTabReachOptions(dynamic_cast<const QWidget&>(*watched));
        }
        const auto character = keys::character(key);
        if (keys::code(key) != 0 || (character && QChar(*character).isPrint() && *character != ' ')) {
            return QCoreApplication::sendEvent(&m_canvas, event);
        }
    }
    return QObject::eventFilter(watched, event);
}
