#include "platform/qt/blinking_picture.h"

#include <QPainter>

namespace schemlet {

BlinkingPicture::BlinkingPicture(QWidget* parent) : QLabel(parent)
{
    QLabel::setVisible(true); // otherwise the window would call setVisible(true) when it is first shown
}

void BlinkingPicture::setPicture(const QIcon& picture)
{
    m_picture = picture;
    m_drawn = {};
    setPixmap(picture.pixmap(size())); // makes it a picture for assistive programs
}

void BlinkingPicture::setVisible(bool visible)
{
    if (m_on != visible) {
        m_on = visible;
        parentWidget()->update(geometry()); // the canvas is opaque, so the repaint does not start at the window
    }
}

void BlinkingPicture::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_on) {
        return;
    }
    if (m_drawn.isNull() || m_drawn.devicePixelRatio() != devicePixelRatioF()) {
        m_drawn = m_picture.pixmap(size(), devicePixelRatioF());
    }
    QPainter(this).drawPixmap(rect(), m_drawn);
}

} // namespace schemlet
