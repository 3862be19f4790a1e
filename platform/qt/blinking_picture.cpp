#include "platform/qt/blinking_picture.h"

#include <QPainter>

namespace schemlet {

BlinkingPicture::BlinkingPicture(QWidget* parent) : QLabel(parent)
{
    QLabel::setVisible(true); // else its window would switch it on when it first shows
}

void BlinkingPicture::setPicture(const QIcon& picture)
{
    m_picture = picture;
    setPixmap(picture.pixmap(size())); // so that assistive programs know it for a picture
}

void BlinkingPicture::setVisible(bool visible)
{
    if (m_on != visible) {
        m_on = visible;
        parentWidget()->update(geometry()); // the canvas is opaque, so the repaint starts there and not at the window
    }
}

void BlinkingPicture::paintEvent(QPaintEvent* /*event*/)
{
    if (m_on) {
        QPainter painter(this);
        m_picture.paint(&painter, rect());
    }
}

} // namespace schemlet
