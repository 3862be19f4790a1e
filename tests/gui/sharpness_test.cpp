#include "platform/qt/canvas_widget.h"
#include "shell/product_picture.h"
#include "tests/gui/pixels.h"
#include "tests/support/sample_files.h"

#include <QBackingStore>
#include <QTest>
#include <gtest/gtest.h>

namespace schemlet {

// The canvas on screens that have more pixels than it.

namespace {

constexpr double ratios[] = {1.25, 1.5, 1.75, 2, 3};

/// A bit of everything that leaves ink, at places between the pixels and over the edges too.
void drawEverything(Surface& surface)
{
    drawProductPicture(surface);
    surface.setForeColor(0x2040C0);
    surface.box({1003, 403}, {1711, 1296});
    surface.box({-100, -100}, {4490, 2990});
    surface.arc({3000, 1500}, 307, 3.5F, 0);
    surface.setCurrent({2111, 333});
    surface.print("WiLlIaM 12.5 mOhm", true);
    for (int i = 0; i < 100; ++i) {
        const auto at = static_cast<float>(37 * i);
        surface.line({at, 2400 + at / 3}, {at + 37, 2400 + (at + 37) / 3});
    }
}

/// A canvas of 300 x 200 pixels, as a screen of some ratio shows it.
struct Canvas {
    CanvasSurface surface;

    explicit Canvas(double ratio = 1)
    {
        surface.growTo({300, 200});
        surface.setRatio(ratio);
    }
};

/// Whether a pixel lies within an area around a place that, at most, it may be off by.
bool occurs(const QImage& image, QRgb pixel, QRectF around)
{
    bool found = false;
    const QRect part = around.toAlignedRect() & image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            found = found || image.pixel(x, y) == pixel;
        }
    }
    return found;
}

/// How many pixels of either image have a colour that the other one has not there nor one canvas pixel beside it.
int strays(const CanvasSurface& surface)
{
    const QImage& picture = surface.picture();
    const QImage& screen = surface.screenImage();
    const double ratio = surface.ratio();
    int count = 0;
    visit(screen.copy(QRect(QPoint(), picture.size() * ratio)), [&](int x, int y) {
        const QPoint on(int((x + 0.5) / ratio), int((y + 0.5) / ratio));
        count += occurs(picture, screen.pixel(x, y), QRect(on, QSize(1, 1)).adjusted(-1, -1, 1, 1)) ? 0 : 1;
    });
    visit(picture, [&](int x, int y) {
        const QRectF around((x - 1) * ratio, (y - 1) * ratio, 3 * ratio, 3 * ratio);
        count += occurs(screen, picture.pixel(x, y), around) ? 0 : 1;
    });
    return count;
}

/// What the screen image would be if it were the picture's pixels, only larger.
QImage blocks(const CanvasSurface& surface)
{
    const QImage& picture = surface.picture();
    const auto on = [&](int at, int end) { return qMin(int((at + 0.5) / surface.ratio()), end - 1); };
    QImage image = surface.screenImage().copy();
    visit(image,
          [&](int x, int y) { image.setPixel(x, y, picture.pixel(on(x, picture.width()), on(y, picture.height()))); });
    return image;
}

} // namespace

TEST(Sharpness, PictureIsTheSameOnEveryScreenAndTheScreenShowsItFiner)
{
    Canvas plain;
    drawEverything(plain.surface);
    EXPECT_EQ(&plain.surface.screenImage(), &plain.surface.picture()); // one image and no more
    EXPECT_GT(inkedPixels(plain.surface.picture()), 2000);
    for (const double ratio : ratios) {
        SCOPED_TRACE(ratio);
        Canvas canvas(ratio);
        drawEverything(canvas.surface);
        EXPECT_EQ(canvas.surface.picture(), plain.surface.picture());
        EXPECT_EQ(canvas.surface.current().x, plain.surface.current().x);
        EXPECT_EQ(canvas.surface.screenImage().size(), QSize(qCeil(301 * ratio), qCeil(201 * ratio)));
        EXPECT_EQ(strays(canvas.surface), 0);
        QtSurface fine(ratio);
        fine.growTo({301, 201});
        drawEverything(fine);
        const QImage& screen = canvas.surface.screenImage();
        EXPECT_GT(differing(screen, blocks(canvas.surface)), 1000);
        EXPECT_LT(differing(screen, fine.image()), differing(screen, blocks(canvas.surface)));
    }
}

TEST(Sharpness, StrokesAndCornersLieWithinAPixelOfTheScreenOfThePictures)
{
    constexpr void (*strokes[])(QtSurface&, float) = {
        [](QtSurface& surface, float at) {
            surface.line({at, at}, {at + 200, at + 550});
        },
        [](QtSurface& surface, float at) {
            surface.box({at, at}, {at + 500, at + 411});
        },
        [](QtSurface& surface, float at) {
            surface.circle({at + 100, at + 200}, 10);
        },
        [](QtSurface& surface, float at) {
            surface.arc({at + 400, at + 400}, 203, 0, 6);
        },
    };
    for (const double ratio : ratios) {
        for (int i = 0; i < 24; ++i) {
            SCOPED_TRACE(std::to_string(ratio) + " " + std::to_string(i));
            QtSurface surfaces[] = {QtSurface(), QtSurface(ratio)};
            for (QtSurface& surface : surfaces) {
                surface.growTo({80, 80});
                strokes[i % 4](surface, static_cast<float>(300 + i - i % 4));
            }
            const QRect plain = inkedPart(surfaces[0].image());
            const QRect fine = inkedPart(surfaces[1].image());
            EXPECT_NEAR(fine.left(), plain.left() * ratio, 1.01);
            EXPECT_NEAR(fine.top(), plain.top() * ratio, 1.01);
            EXPECT_NEAR(fine.left() + fine.width(), (plain.left() + plain.width()) * ratio, 1.01);
            EXPECT_NEAR(fine.top() + fine.height(), (plain.top() + plain.height()) * ratio, 1.01);
        }
    }
}

TEST(Sharpness, WhatIsDrawnOverInWhiteIsCleanOnTheScreen)
{
    for (const double ratio : ratios) {
        SCOPED_TRACE(ratio);
        Canvas canvas(ratio);
        for (const Color color : {black, white}) {
            canvas.surface.setForeColor(color);
            for (int i = 0; i < 15; ++i) { // from and to places that are the same pixel of the picture
                const auto at = static_cast<float>(color == white ? 600 + i : 614 - i);
                canvas.surface.circle({at + 2000, at}, 500);
                canvas.surface.line({at, at}, {at + 900, at + 450});
                canvas.surface.box({at, at}, {at + 900, at + 450});
                canvas.surface.setCurrent({at + 900, at});
                canvas.surface.print("WiLlIaM 12.5", true);
            }
        }
        EXPECT_EQ(inkedPixels(canvas.surface.picture()), 0);
        EXPECT_EQ(inkedPixels(canvas.surface.screenImage()), 0);
    }
}

TEST(Sharpness, PaperPicturesLargerWindowsAndOtherScreensReachBothImages)
{
    const QImage picture = colourful(500, 70);
    Canvas canvas;
    CanvasSurface& surface = canvas.surface;
    for (const double ratio : {2.0, 1.5, 3.0, 1.75, 1.0, 1.25}) {
        SCOPED_TRACE(ratio);
        surface.setBackColor(white);
        drawEverything(canvas.surface);
        const QImage before = surface.picture();
        EXPECT_TRUE(surface.setRatio(ratio));
        EXPECT_FALSE(surface.setRatio(ratio));
        EXPECT_EQ(surface.picture(), before);
        EXPECT_EQ(surface.screenImage(), blocks(surface));
        QRegion changed;
        surface.changed = [&](const QRect& part) { changed += part; };
        surface.setPicture(picture);
        EXPECT_TRUE(changed.contains(QRect(0, 0, 300, 200)));
        EXPECT_EQ(surface.screenImage(), blocks(surface));
        drawEverything(canvas.surface);
        surface.growTo(surface.picture().size() + QSize(60, 20));
        EXPECT_EQ(strays(surface), 0); // the picture's hidden part too
        surface.clear();
        EXPECT_EQ(inkedPixels(surface.screenImage()), 0);
        surface.line({4000, 2000}, {8800, 3500});
        EXPECT_EQ(strays(surface), 0);
        surface.setBackColor(0x80FFFF);
        EXPECT_EQ(surface.screenImage(), blocks(surface));
        EXPECT_EQ(surface.screenImage().pixel(5, 5), qRgb(0xFF, 0xFF, 0x80));
        surface.changed = nullptr;
    }
}

TEST(Sharpness, WindowShowsTheImagePixelByPixelHoweverItIsRepainted)
{
    QWidget window;
    CanvasWidget canvas(&window);
    canvas.setGeometry(7, 11, 301, 203); // between the screen's pixels where the ratio is odd
    window.resize(320, 230);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    canvas.report = [](const Event&) {};
    for (int i = 0; i < 100; ++i) { // many little repaints
        const auto step = static_cast<float>(i);
        canvas.surface().setForeColor(static_cast<Color>(i * 4000));
        canvas.surface().circle({300 + 37 * step, 300 + 17 * step}, 20 + 7 * step);
        QCoreApplication::processEvents();
    }
    const double ratio = canvas.surface().ratio();
    EXPECT_EQ(ratio, canvas.devicePixelRatioF());
    const auto& shown = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
    const QPoint corner(qRound(7 * ratio), qRound(11 * ratio));
    const QSize size(qFloor(301 * ratio) - 1, qFloor(203 * ratio) - 1);
    EXPECT_EQ(differing(shown.copy(QRect(corner, size)), canvas.surface().screenImage()), 0);
}

} // namespace schemlet
