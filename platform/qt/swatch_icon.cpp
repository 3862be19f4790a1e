#include "platform/qt/swatch_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace schemlet {

namespace {

// In the units of the SVG pictures.
constexpr double pictureSize = 24;
constexpr QRectF bar(2.5, 15.5, 19, 6);
// The pictures' outline colour. It sets off a white bar on a light toolbar and a black one on a dark toolbar.
constexpr QColor outline(0x5A, 0x6D, 0x82);

/// Paints the icon anew for each size and pixel ratio.
class SwatchEngine final : public QIconEngine {
public:
    SwatchEngine(QIcon picture, const QColor& color) : m_picture(std::move(picture)), m_color(color) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        m_picture.paint(painter, place, Qt::AlignCenter, mode, state);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(place.width() / pictureSize, place.height() / pictureSize);
        painter->setPen(outline);
        painter->setBrush(m_color);
        painter->drawRect(bar);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        paint(&painter, pixels.rect(), mode, state);
        return pixels;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SwatchEngine(*this); }

private:
    QIcon m_picture;
    QColor m_color;
};

} // namespace

QIcon swatchIcon(const QIcon& picture, const QColor& color)
{
    return QIcon(new SwatchEngine(picture, color));
}

} // namespace schemlet
