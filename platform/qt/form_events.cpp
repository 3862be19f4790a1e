#include "platform/qt/form_events.h"

#include "platform/qt/keys.h"

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <QResizeEvent>
#include <algorithm>

namespace schemlet {

namespace {

/// Lets Tab stop at each option of a group, because the arrow keys go to the canvas. Qt lets Tab stop at one only.
void letTabReachOptions(const QWidget& button)
{
    for (auto* const option : button.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        option->setFocusPolicy(Qt::StrongFocus);
    }
}

/// A widget also gets moves outside it while a button is held, and moves that its children ignore.
bool isOver(const QWidget& widget, QPoint place)
{
    return widget.rect().contains(place) && widget.childAt(place) == nullptr;
}

bool takesNoRoom(const QWidget& widget)
{
    return widget.isHidden() && !widget.sizePolicy().retainSizeWhenHidden();
}

} // namespace

CloseRequest::CloseRequest(QWidget& window, std::function<void()> requested)
    : QObject(&window), m_requested(std::move(requested))
{
    window.installEventFilter(this);
}

bool CloseRequest::eventFilter(QObject* watched, QEvent* event)
{
    const bool escape = event->type() == QEvent::KeyPress && qobject_cast<const QDialog*>(watched) != nullptr &&
                        dynamic_cast<const QKeyEvent&>(*event).matches(QKeySequence::Cancel);
    if (!escape && event->type() != QEvent::Close) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    m_requested();
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
    return watched == &m_frame; // events that its controls ignore stop here
}

Floating::Floating(QWidget& control) : QObject(&control), m_control(control), m_margin(control.y())
{
    control.installEventFilter(this); // the control grows when its layout is done
    control.parentWidget()->installEventFilter(this);
}

bool Floating::eventFilter(QObject* watched, QEvent* event)
{
    const bool isControl = watched == &m_control;
    if (isControl && event->type() == QEvent::Move && m_control.pos() != m_placed) {
        m_dropped = m_control.pos();
        m_roomAtDrop = m_control.parentWidget()->size();
    } else if (event->type() == QEvent::Resize && !m_dropped) {
        place(topRight());
    } else if (!isControl && event->type() == QEvent::Resize && !m_control.isHidden()) {
        keepInside(m_control.pos(), dynamic_cast<const QResizeEvent&>(*event).oldSize());
    } else if (isControl && event->type() == QEvent::ShowToParent && m_dropped) {
        keepInside(*m_dropped, m_roomAtDrop);
    }
    return QObject::eventFilter(watched, event);
}

QPoint Floating::topRight() const
{
    const QSize room = m_control.parentWidget()->size() - m_control.size();
    return {std::max(0, room.width() - m_margin), std::max(0, std::min(m_margin, room.height()))};
}

/// Moves the control only along sides that have shrunk. Elsewhere it may lie beyond the edge, as the user dropped it.
void Floating::keepInside(QPoint wanted, QSize roomBefore)
{
    const QSize room = m_control.parentWidget()->size();
    const QSize last = room - m_control.size();
    if (room.width() < roomBefore.width()) {
        wanted.setX(std::max(0, std::min(wanted.x(), last.width())));
    }
    if (room.height() < roomBefore.height()) {
        wanted.setY(std::max(0, std::min(wanted.y(), last.height())));
    }
    place(wanted);
}

void Floating::place(QPoint place)
{
    m_placed = place;
    m_control.move(place);
}

ShowsWith::ShowsWith(QWidget& widget, QWidget& frame) : QObject(&widget), m_widget(widget), m_frame(frame)
{
    frame.installEventFilter(this);
    for (QWidget* const content : m_widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        content->installEventFilter(this);
    }
}

bool ShowsWith::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        const auto contents = m_widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        const bool empty = std::ranges::all_of(contents, [](const QWidget* each) { return takesNoRoom(*each); });
        m_widget.setVisible(!m_frame.isHidden() && !empty);
    }
    return QObject::eventFilter(watched, event);
}

OwnKeys::OwnKeys(QWidget& textBox, QList<QKeySequence> keys) : QObject(&textBox), m_keys(std::move(keys))
{
    textBox.installEventFilter(this);
}

bool OwnKeys::eventFilter(QObject* watched, QEvent* event)
{
    // Qt asks whether the text box wants the key before shortcuts get it.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = dynamic_cast<const QKeyEvent&>(*event);
        if (m_keys.contains(QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(key.key())))) {
            event->accept();
            return true;
        }
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

} // namespace schemlet
