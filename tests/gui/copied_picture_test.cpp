#include "platform/qt/copied_picture.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

/// A canvas of 300 x 200 pixels on a screen of some ratio.
struct CopiedPicture : testing::TestWithParam<double> {
    CanvasSurface canvas;

    CopiedPicture()
    {
        canvas.growTo({300, 200});
        canvas.setRatio(GetParam());
        canvas.setBackColor(0x00FFFF); // yellow
    }

    [[nodiscard]] QImage copied() const { return pictureOfInk(canvas); }
};

/// A part of a picture, in canvas pixels.
QImage part(const QImage& picture, double ratio, QRect place)
{
    return picture.copy(QRectF(QPointF(place.topLeft()) * ratio, QSizeF(place.size()) * ratio).toRect());
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Ratio, CopiedPicture, testing::Values(1, 1.25, 2));

TEST_P(CopiedPicture, IsTheInkWithAMarginOfPaperAndOneSizeOnEveryScreen)
{
    EXPECT_TRUE(copied().isNull());
    canvas.line({75, 60}, {600, 60});   // its pixels are 4 to 40 and 3 to 4
    canvas.line({300, 60}, {300, 900}); // 60
    const QImage picture = copied();
    const double ratio = GetParam();
    EXPECT_EQ(picture.size(), (QSizeF(37 + 20, 58 + 20) * ratio).toSize());
    EXPECT_NEAR(picture.width() / (picture.dotsPerMeterX() * 0.0254), 57 / 96.0, 0.01); // inches
    EXPECT_EQ(picture.dotsPerMeterX(), picture.dotsPerMeterY());
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::yellow)); // beyond the canvas
    const QRect onCanvas(4, 3, 37, 58);
    EXPECT_EQ(part(picture, ratio, onCanvas.translated(10 - 4, 10 - 3)), part(canvas.screenImage(), ratio, onCanvas));
}

TEST_P(CopiedPicture, ShowsABackgroundLargerThanTheScreen)
{
    QImage background(500, 100, QImage::Format_RGB32);
    background.fill(QColor(Qt::yellow));
    background.setPixelColor(499, 50, Qt::blue);
    canvas.setPicture(background);
    const QImage picture = copied();
    const double ratio = GetParam();
    EXPECT_EQ(picture.size(), (QSizeF(21, 21) * ratio).toSize());
    const int middle = static_cast<int>(10.5 * ratio);
    EXPECT_EQ(picture.pixelColor(middle, middle), QColor(Qt::blue));
}

} // namespace schemlet
