#include "platform/qt/copied_picture.h"

#include <QPainter>
#include <algorithm>
#include <span>

namespace schemlet {

namespace {

constexpr int margin = 10;                         // canvas pixels
constexpr double canvasDotsPerMeter = 96 / 0.0254; // 96 pixels an inch

/// The smallest rectangle with all pixels of another colour than the paper; null if there are none.
QRect inkOf(const QImage& picture, QRgb paper)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        const std::span row(reinterpret_cast<const QRgb*>(picture.constScanLine(y)),
                            static_cast<std::size_t>(picture.width()));
        const auto isInk = [paper](QRgb pixel) { return pixel != paper; };
        const auto first = std::ranges::find_if(row, isInk);
        if (first != row.end()) {
            const auto end = std::find_if(row.rbegin(), row.rend(), isInk).base();
            const auto column = [&row](auto place) { return static_cast<int>(place - row.begin()); };
            ink |= QRect(QPoint(column(first), y), QPoint(column(end) - 1, y));
        }
    }
    return ink;
}

} // namespace

QImage pictureOfInk(const CanvasSurface& surface)
{
    const QRect ink = inkOf(surface.picture(), surface.paper());
    if (ink.isNull()) {
        return {};
    }
    const double ratio = surface.ratio();
    const QRect part = ink.adjusted(-margin, -margin, margin, margin);
    const QPoint corner = (QPointF(part.topLeft()) * ratio).toPoint();
    QImage copied((QSizeF(part.size()) * ratio).toSize(), QImage::Format_RGB32);
    copied.setDotsPerMeterX(qRound(canvasDotsPerMeter * ratio));
    copied.setDotsPerMeterY(copied.dotsPerMeterX());
    copied.fill(surface.paper());
    QPainter painter(&copied);
    painter.translate(-corner);
    if (ratio > 1) { // the finer image may be smaller than the picture
        painter.drawImage(QRectF(QPointF(), QSizeF(surface.picture().size()) * ratio), surface.picture());
    }
    painter.drawImage(QPoint(), surface.screenImage());
    return copied;
}

} // namespace schemlet
