#include "platform/qt/qt_surface.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace {

QtSurface surfaceOf(int width, int height)
{
    QtSurface surface;
    surface.growTo({width, height});
    return surface;
}

} // namespace

TEST(QtSurface, FindsAgainTheColourThatWasDrawn)
{
    QtSurface surface = surfaceOf(100, 100);
    EXPECT_EQ(surface.point(750, 750), white);
    surface.setForeColor(0x1234AB); // red AB, blue 12
    surface.line(300, 750, 1200, 750);
    EXPECT_EQ(surface.point(750, 750), 0x1234ABU);
    EXPECT_EQ(QColor(surface.image().pixel(50, 50)), QColor(0xAB, 0x34, 0x12));
    for (const auto& [x, y] : {std::pair{-1.0F, 5.0F}, {5.0F, -1.0F}, {1500.0F, 5.0F}, {5.0F, 1500.0F}, {1e9F, 5.0F}}) {
        EXPECT_EQ(surface.point(x, y), std::nullopt);
    }
    EXPECT_EQ(surface.point(1499, 1499), white);
}

TEST(QtSurface, GrowsWithItsInkAndNeverShrinks)
{
    QtSurface surface = surfaceOf(100, 100);
    surface.line(300, 750, 1200, 750);
    surface.growTo({20, 20});
    EXPECT_EQ(surface.image().size(), QSize(100, 100));
    surface.growTo({40, 300});
    EXPECT_EQ(surface.image().size(), QSize(100, 300));
    EXPECT_EQ(surface.point(750, 750), black);
    EXPECT_EQ(surface.point(750, 4000), white);
}

TEST(QtSurface, DrawsTheSameFinerAtALargerScale)
{
    QtSurface plain = surfaceOf(100, 100);
    QtSurface fine(2);
    fine.growTo({100, 100});
    EXPECT_EQ(fine.image().size(), QSize(200, 200));
    QRect changed;
    fine.changed = [&](const QRect& part) { changed |= part; };
    fine.line(300, 750, 300, 750);
    EXPECT_EQ(changed, QRect(38, 98, 4, 4)); // a dot of twice two pixels around (20, 50)
    for (Surface* const surface : std::initializer_list<Surface*>{&plain, &fine}) {
        surface->circle(750, 750, 450);
        surface->line(150, 150, 1350, 1350);
        surface->setCurrent(900, 300);
        surface->print("470", true);
        EXPECT_EQ(surface->point(750, 750), black);
        EXPECT_EQ(surface->point(750, 600), white);
        EXPECT_EQ(surface->point(750, 300), black);
        EXPECT_EQ(surface->point(1500, 750), std::nullopt);
        EXPECT_NEAR(surface->current().y, 300 + 13 * twipsPerPixel, 1);
    }
}

TEST(QtSurface, ReportsOnlyThePartThatChanged)
{
    QtSurface surface = surfaceOf(200, 200);
    QRect changed;
    surface.changed = [&](const QRect& part) { changed |= part; };
    surface.line(1500, 1500, 1500, 1500);
    EXPECT_EQ(changed, QRect(99, 99, 2, 2));

    changed = {};
    surface.line(-9000, -9000, -8000, -8000);
    surface.circle(1e9F, 0, 100);
    EXPECT_TRUE(changed.isEmpty());

    const QImage before = surface.image();
    surface.setCurrent(1500, 1500);
    surface.print("Wg", true);
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 200; ++x) {
            if (!changed.contains(x, y)) {
                ASSERT_EQ(surface.image().pixel(x, y), before.pixel(x, y)) << x << ' ' << y;
            }
        }
    }
}

TEST(QtSurface, BoxIsAnOutlineWithClosedCornersThatLeavesTheCurrentPointAtItsSecondCorner)
{
    QtSurface surface = surfaceOf(100, 100);
    surface.box(1200, 900, 300, 300);
    for (const auto& [x, y] : {std::pair{300.0F, 300.0F}, {1199.0F, 300.0F}, {300.0F, 899.0F}, {1199.0F, 899.0F}}) {
        EXPECT_EQ(surface.point(x, y), black) << x << ' ' << y;
    }
    EXPECT_EQ(surface.point(750, 600), white);
    EXPECT_EQ(surface.current().x, 300);
    EXPECT_EQ(surface.current().y, 300);
}

TEST(QtSurface, PrintsFromTheCurrentPointAndEndsTheLineOrNot)
{
    constexpr double lineHeight = 13 * twipsPerPixel;
    QtSurface surface = surfaceOf(200, 200);
    surface.setForeColor(0x0000FF);
    surface.setCurrent(1500, 1500);
    surface.print("R", false);
    EXPECT_GT(surface.current().x, 1500);
    EXPECT_EQ(surface.current().y, 1500);
    surface.print("1", true);
    EXPECT_EQ(surface.current().x, 0);
    EXPECT_EQ(surface.current().y, 1500 + lineHeight);

    // The top-left corner is the current point, and no pixel is a mixture of colours.
    int inked = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 200; ++x) {
            const QColor pixel(surface.image().pixel(x, y));
            if (pixel != Qt::white) {
                ++inked;
                EXPECT_EQ(pixel, QColor(Qt::red));
                EXPECT_TRUE(QRect(99, 100, 30, 13).contains(x, y)) << x << ' ' << y;
            }
        }
    }
    EXPECT_GT(inked, 10);

    surface.setCurrent(-1e9F, 1e9F); // far outside: nothing to draw, and no overflow
    surface.print("R", true);
    EXPECT_EQ(surface.current().x, 0);
}

TEST(QtSurface, KeepsNothingOfAMillionStrokes)
{
    QtSurface surface = surfaceOf(100, 100);
    const auto draw = [&](int strokes) {
        for (int i = 0; i < strokes; i += 4) {
            const auto x = static_cast<float>(i % 1499);
            const auto y = static_cast<float>(i % 1501);
            surface.line(x, y, y, x);
            surface.box(x, y, x + 100, y + 100);
            surface.circle(x, y, 100);
            surface.arc(x, y, 100, 1, 2);
            if (i % 1000 == 0) {
                surface.print(std::to_string(i % 10000), true);
            }
        }
    };
    draw(10'000);
    const auto bytes = [] { return mallinfo2().uordblks; };
    const std::size_t before = bytes();
    draw(1'000'000);
    EXPECT_LE(bytes(), before + 1000);
}
