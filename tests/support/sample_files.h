#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <gtest/gtest.h>

namespace schemlet {

/// A picture whose neighbouring pixels differ.
inline QImage colourful(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb(x * 19 % 256, y * 23 % 256, (x ^ y) * 7 % 256));
        }
    }
    return image;
}

inline QByteArray written(const QImage& image, const char* format, bool progressive = false)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image));
    return buffer.data();
}

inline QByteArray contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

inline void store(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace schemlet
