#pragma once

#include <QImage>

namespace schemlet {

/// Calls look(x, y) for each pixel, row by row.
template <typename Look> void visit(const QImage& image, Look look)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            look(x, y);
        }
    }
}

inline int differing(const QImage& one, const QImage& other)
{
    int pixels = 0;
    visit(one, [&](int x, int y) { pixels += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1; });
    return pixels;
}

inline bool isInked(const QImage& image, int x, int y)
{
    return image.pixel(x, y) != qRgb(255, 255, 255);
}

inline int inkedPixels(const QImage& image)
{
    int pixels = 0;
    visit(image, [&](int x, int y) { pixels += isInked(image, x, y) ? 1 : 0; });
    return pixels;
}

/// The smallest rectangle that contains all ink.
inline QRect inkedPart(const QImage& image)
{
    QRect part;
    visit(image, [&](int x, int y) { part |= isInked(image, x, y) ? QRect(x, y, 1, 1) : QRect(); });
    return part;
}

} // namespace schemlet
