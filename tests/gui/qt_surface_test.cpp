#include "platform/qt/qt_surface.h"

#include "tests/gui/pixels.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

/// 200 x 200 pixels, and what of them changed.
struct QtSurfaceTest : testing::Test {
    QtSurface surface;
    QRect changed;

    QtSurfaceTest()
    {
        surface.growTo({200, 200});
        surface.changed = [this](const QRect& part) { changed |= part; };
    }
};

} // namespace

TEST_F(QtSurfaceTest, FindsAgainTheColourThatWasDrawnOnItAndNothingBeyond)
{
    surface.setForeColor(0x1234AB); // red AB, blue 12
    surface.line({300, 750}, {1200, 750});
    EXPECT_EQ(surface.point({750, 750}), 0x1234ABU);
    EXPECT_EQ(QColor(surface.image().pixel(50, 50)), QColor(0xAB, 0x34, 0x12));
    EXPECT_EQ(surface.point({2999, 2999}), white);
    for (const Point& beyond : {Point{-1, 5}, {5, -1}, {3000, 5}, {5, 3000}, {1e9, 5}}) {
        EXPECT_EQ(surface.point(beyond), std::nullopt);
    }
}

TEST_F(QtSurfaceTest, ReportsOnlyThePartThatChanged)
{
    surface.line({-9000, -9000}, {-8000, -8000});
    surface.circle({1e9F, 0}, 100);
    EXPECT_TRUE(changed.isEmpty());
    surface.line({1500, 1500}, {1500, 1500});
    EXPECT_EQ(changed, QRect(99, 99, 2, 2));
}

TEST_F(QtSurfaceTest, PrintsHardEdgedFromTheCurrentPointAndEndsTheLineOrNot)
{
    surface.setForeColor(0x0000FF);
    surface.setCurrent({1500, 1500});
    surface.print("R", false);
    EXPECT_GT(surface.current().x, 1500);
    EXPECT_EQ(surface.current().y, 1500);
    surface.print("g", true);
    EXPECT_EQ(surface.current().x, 0);
    EXPECT_EQ(surface.current().y, 1500 + 13 * twipsPerPixel);

    const QImage& image = surface.image();
    EXPECT_GT(inkedPixels(image), 10);
    EXPECT_TRUE(QRect(99, 100, 30, 13).contains(inkedPart(image)));
    EXPECT_TRUE(changed.contains(inkedPart(image)));
    EXPECT_LT(changed.width(), 40);
    visit(image, [&](int x, int y) { EXPECT_TRUE(!isInked(image, x, y) || image.pixelColor(x, y) == Qt::red); });

    surface.setCurrent({-1e9F, 1e9F}); // far outside: nothing to draw, and no overflow
    surface.print("R", true);
    EXPECT_EQ(surface.current().x, 0);
}

TEST_F(QtSurfaceTest, KeepsAPictureWiderOrTallerThanQtPaints)
{
    for (const QSize size : {QSize(40000, 2), QSize(2, 40000)}) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        surface.setPicture(picture);
        EXPECT_EQ(surface.image().copy(picture.rect()), picture);
    }
}

} // namespace schemlet
