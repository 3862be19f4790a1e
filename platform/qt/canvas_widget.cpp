#include "platform/qt/canvas_widget.h"

#include "platform/qt/held_buttons.h"
#include "platform/qt/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace schemlet {

namespace {

int buttonCode(Qt::MouseButtons buttons)
{
    int code = 0;
    code += buttons.testFlag(Qt::LeftButton) ? button::left : 0;
    code += buttons.testFlag(Qt::RightButton) ? button::right : 0;
    code += buttons.testFlag(Qt::MiddleButton) ? button::middle : 0;
    return code;
}

bool isPlainArrow(const QKeyEvent& event)
{
    return keys::code(event) != 0 && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

} // namespace

CanvasWidget::CanvasWidget(QWidget* parent)
    : QWidget(parent), m_buttons(new HeldButtons(*this, [this](Qt::MouseButton button, QPointF position) {
          reportMouse(Event::Kind::mouseUp, buttonCode(button), position);
      }))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    // The image covers every pixel and stays at the top left when the window grows, so nothing needs to be wiped or
    // moved.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_StaticContents);
    m_surface.changed = [this](const QRect& part) { showInk(part & rect()); };
}

bool CanvasWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isPlainArrow(dynamic_cast<const QKeyEvent&>(*event))) {
        event->accept(); // no shortcut takes it, so the toolkit need not search them
        return true;
    }
    if (event->type() == QEvent::WindowBlocked) {
        showChanges(); // what was drawn before a dialog opens is visible beside it
    }
    return QWidget::event(event);
}

void CanvasWidget::showTogether(const std::function<void()>& handler)
{
    const bool collected = std::exchange(m_collects, true);
    handler();
    m_collects = collected;
    showChanges();
}

void CanvasWidget::showInk(const QRect& part)
{
    m_changed += part;
    if (!m_collects) {
        showChanges();
    }
}

void CanvasWidget::showChanges()
{
    const QRegion changed = std::exchange(m_changed, {});
    if (changed.isEmpty() ||
        (!m_showsFocus && m_directInk.show(changed.boundingRect(), m_surface.screenImage(), m_surface.ratio()))) {
        return;
    }
    for (const QRect& part : changed) {
        // At a fractional ratio the edges may lie between two screen pixels.
        update(m_surface.ratio() > 1 ? part.adjusted(-1, -1, 1, 1) : part);
    }
}

void CanvasWidget::paintEvent(QPaintEvent* event)
{
    if (m_surface.setRatio(devicePixelRatioF())) {
        update(); // all of it, not only this event's region
    }
    drawInk(event->region());
    if (m_showsFocus) {
        drawFocus();
    }
}

void CanvasWidget::drawInk(const QRegion& region)
{
    // One image pixel goes to one screen pixel, even if the canvas starts between two of them.
    const double ratio = m_surface.ratio();
    QPainter painter(this);
    painter.scale(1 / ratio, 1 / ratio);
    const QTransform toScreen = painter.deviceTransform();
    painter.translate(std::round(toScreen.dx()) - toScreen.dx(), std::round(toScreen.dy()) - toScreen.dy());
    for (const QRect& part : region) {
        const QRect pixels = QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio).toAlignedRect();
        const QRect wider = pixels.adjusted(-1, -1, 1, 1) & m_surface.screenImage().rect();
        painter.drawImage(wider, m_surface.screenImage(), wider);
    }
}

void CanvasWidget::drawFocus()
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void CanvasWidget::resizeEvent(QResizeEvent* /*event*/)
{
    m_surface.growTo(size());
    showFocus(m_showsFocus); // moves the frame to the new edges
}

void CanvasWidget::focusInEvent(QFocusEvent* event)
{
    showFocus(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
    // The menu or dialog that has just closed may have covered the canvas under the mouse. It leaves the screen a
    // moment later.
    QMetaObject::invokeMethod(
        this, [this] { reportPointer(); }, Qt::QueuedConnection);
}

void CanvasWidget::focusOutEvent(QFocusEvent* /*event*/)
{
    showFocus(false);
}

void CanvasWidget::showFocus(bool shown)
{
    if (shown || m_showsFocus) {
        m_showsFocus = shown;
        update();
    }
}

void CanvasWidget::keyPressEvent(QKeyEvent* event)
{
    if (keys::isModifier(*event)) {
        return QWidget::keyPressEvent(event);
    }
    report({.kind = Event::Kind::keyDown, .code = keys::code(*event)});
    if (const auto character = keys::character(*event)) {
        report({.kind = Event::Kind::keyPress, .code = *character});
    }
}

void CanvasWidget::mousePressEvent(QMouseEvent* event)
{
    showFocus(false);
    m_buttons->press(*event);
    reportMouse(Event::Kind::mouseDown, buttonCode(event->button()), event->position());
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event)
{
    reportMouse(Event::Kind::mouseMove, buttonCode(event->buttons() & m_buttons->held()), event->position());
}

void CanvasWidget::leaveEvent(QEvent* /*event*/)
{
    report({.kind = Event::Kind::hover});
}

void CanvasWidget::reportPointer() const
{
    const QPoint place = QCursor::pos();
    if (QApplication::widgetAt(place) == this) {
        reportMouse(Event::Kind::hover, 0, mapFromGlobal(place), "Canvas");
    }
}

void CanvasWidget::reportMouse(Event::Kind kind, int code, QPointF position, std::string_view name) const
{
    report({.kind = kind,
            .name = name,
            .code = code,
            .place = {static_cast<float>(position.x() * twipsPerPixel),
                      static_cast<float>(position.y() * twipsPerPixel)}});
}

} // namespace schemlet
