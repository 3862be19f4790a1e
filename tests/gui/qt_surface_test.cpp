#include "platform/qt/qt_surface.h"

#include "tests/gui/pixels.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace schemlet {

namespace {

/// 200 x 200 pixels, and what of them changed.
struct Paper {
    QtSurface surface;
    QRect changed;

    Paper()
    {
        surface.growTo({200, 200});
        surface.changed = [this](const QRect& part) { changed |= part; };
    }
};

} // namespace

TEST(QtSurface, FindsAgainTheColourThatWasDrawnOnItAndNothingBeyond)
{
    Paper paper;
    EXPECT_EQ(paper.surface.point({750, 750}), white);
    paper.surface.setForeColor(0x1234AB); // red AB, blue 12
    paper.surface.line({300, 750}, {1200, 750});
    EXPECT_EQ(paper.surface.point({750, 750}), 0x1234ABU);
    EXPECT_EQ(QColor(paper.surface.image().pixel(50, 50)), QColor(0xAB, 0x34, 0x12));
    for (const auto& [x, y] : {std::pair{-1.0F, 5.0F}, {5.0F, -1.0F}, {3000.0F, 5.0F}, {5.0F, 3000.0F}, {1e9F, 5.0F}}) {
        EXPECT_EQ(paper.surface.point({x, y}), std::nullopt);
    }
    EXPECT_EQ(paper.surface.point({2999, 2999}), white);
}

TEST(QtSurface, ReportsOnlyThePartThatChanged)
{
    Paper paper;
    paper.surface.line({-9000, -9000}, {-8000, -8000});
    paper.surface.circle({1e9F, 0}, 100);
    EXPECT_TRUE(paper.changed.isEmpty());
    paper.surface.line({1500, 1500}, {1500, 1500});
    EXPECT_EQ(paper.changed, QRect(99, 99, 2, 2));

    paper.surface.clear();
    paper.changed = {};
    paper.surface.setCurrent({1500, 1500});
    paper.surface.print("Wg", true);
    EXPECT_TRUE(paper.changed.contains(inkedPart(paper.surface.image())));
    EXPECT_LT(paper.changed.width(), 40);
}

TEST(QtSurface, PrintsHardEdgedFromTheCurrentPointAndEndsTheLineOrNot)
{
    constexpr double lineHeight = 13 * twipsPerPixel;
    Paper paper;
    QtSurface& surface = paper.surface;
    surface.setForeColor(0x0000FF);
    surface.setCurrent({1500, 1500});
    surface.print("R", false);
    EXPECT_GT(surface.current().x, 1500);
    EXPECT_EQ(surface.current().y, 1500);
    surface.print("1", true);
    EXPECT_EQ(surface.current().x, 0);
    EXPECT_EQ(surface.current().y, 1500 + lineHeight);

    const QImage& image = surface.image();
    EXPECT_GT(inkedPixels(image), 10);
    EXPECT_TRUE(QRect(99, 100, 30, 13).contains(inkedPart(image)));
    visit(image, [&](int x, int y) { EXPECT_TRUE(!isInked(image, x, y) || image.pixelColor(x, y) == Qt::red); });

    surface.setCurrent({-1e9F, 1e9F}); // far outside: nothing to draw, and no overflow
    surface.print("R", true);
    EXPECT_EQ(surface.current().x, 0);
}

TEST(QtSurface, KeepsAPictureWiderOrTallerThanQtPaints)
{
    for (const QSize size : {QSize(40000, 2), QSize(2, 40000)}) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QPoint last(size.width() - 1, size.height() - 1);
        picture.setPixelColor(last, Qt::red);
        Paper paper;
        paper.surface.setPicture(picture);
        EXPECT_EQ(QColor(paper.surface.image().pixel(last)), QColor(Qt::red)) << size.width();
    }
}

TEST(QtSurface, KeepsNothingOfAMillionStrokes)
{
    Paper paper;
    const auto draw = [&](int strokes) {
        for (int i = 0; i < strokes; i += 4) {
            const auto x = static_cast<float>(i % 2999);
            paper.surface.line({x, 0}, {3000 - x, 3000});
            paper.surface.circle({x, x}, 100);
            paper.surface.arc({x, x}, 100, 1, 2);
            paper.surface.print(i % 1000 == 0 ? std::to_string(i % 10000) : "", true);
        }
    };
    draw(10'000);
    const std::size_t before = mallinfo2().uordblks;
    draw(1'000'000);
    EXPECT_LE(mallinfo2().uordblks, before + 1000);
}

} // namespace schemlet
