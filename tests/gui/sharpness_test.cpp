#include "canvas/jumper_ground.h"
#include "canvas/mouse.h"
#include "circuit/valued_components.h"
#include "platform/qt/canvas_widget.h"
#include "platform/quiet.h"
#include "shell/events.h"
#include "tests/gui/pixels.h"
#include "tests/support/sample_files.h"

#include <QBackingStore>
#include <QTest>
#include <gtest/gtest.h>

namespace {

constexpr double ratios[] = {1.25, 1.5, 1.75, 2, 3};

/// The program on a canvas of 300 x 200 pixels, as a screen of some ratio shows it.
struct Canvas {
    CanvasSurface surface;
    QuietWindow window;
    QuietDialogs dialogs;
    QuietPictures pictures;
    Form1 form{surface, window, dialogs, pictures, window, window, window, window};

    explicit Canvas(double ratio = 1)
    {
        surface.growTo({300, 200});
        surface.setRatio(ratio);
        form.canvasBackColor = white;
    }

    /// A bit of everything that leaves ink, at places between the pixels and over the edges too.
    void drawEverything()
    {
        dialogs.typed = "47.25";
        form.x = 203;
        form.y = 1507;
        for (const Name symbol : {"resistance", "and", "inductance", "exnor", "emitter", "capacitance", "acmotor"}) {
            deliver(form, {.kind = Event::Kind::keyDown, .code = form.x > 3500 ? key::down : key::right});
            deliver(form, {.kind = Event::Kind::click, .name = symbol});
        }
        jumper(form);
        ground(form);
        surface.setForeColor(0x2040C0);
        surface.box(1003, 403, 1711, 1296);
        surface.box(-100, -100, 4490, 2990);
        surface.arc(3000, 1500, 307, 3.5F, 0);
        surface.setCurrent(2111, 333);
        surface.print("WiLlIaM 12.5 mOhm", true);
        const auto curve = [](int x) {
            return 2400 + 0.3F * static_cast<float>(x) - 0.0001F * static_cast<float>(x * x);
        };
        for (int x = 100; x < 4000; x += 37) {
            surface.line(static_cast<float>(x), curve(x), static_cast<float>(x + 37), curve(x + 37));
        }
    }

    void erase(const QRect& part, int step)
    {
        eraser(form);
        for (int y = part.top(); y <= part.bottom(); y += step) {
            for (int x = part.left(); x <= part.right(); x += step) {
                mouseMove(form, button::left, static_cast<float>(x), static_cast<float>(y));
            }
        }
        eraser(form);
    }
};

/// Whether a pixel lies within an area around a place that, at most, it may be off by.
bool occurs(const QImage& image, QRgb pixel, QRectF around)
{
    const QRect part = around.toAlignedRect() & image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (image.pixel(x, y) == pixel) {
                return true;
            }
        }
    }
    return false;
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
    QImage image = surface.screenImage().copy();
    visit(image, [&](int x, int y) {
        image.setPixel(x, y,
                       picture.pixel(qMin(int((x + 0.5) / surface.ratio()), picture.width() - 1),
                                     qMin(int((y + 0.5) / surface.ratio()), picture.height() - 1)));
    });
    return image;
}

} // namespace

TEST(Sharpness, PictureIsTheSameOnEveryScreenAndTheScreenShowsItFiner)
{
    Canvas plain;
    plain.drawEverything();
    plain.erase({1500, 1200, 1000, 500}, 80);
    EXPECT_EQ(&plain.surface.screenImage(), &plain.surface.picture()); // one image and no more
    EXPECT_GT(inkedPixels(plain.surface.picture()), 2000);
    for (const double ratio : ratios) {
        SCOPED_TRACE(ratio);
        Canvas canvas(ratio);
        canvas.drawEverything();
        canvas.erase({1500, 1200, 1000, 500}, 80);
        EXPECT_EQ(canvas.surface.picture(), plain.surface.picture());
        EXPECT_EQ(canvas.surface.current().x, plain.surface.current().x);
        EXPECT_EQ(canvas.surface.screenImage().size(), QSize(qCeil(301 * ratio), qCeil(201 * ratio)));
        EXPECT_EQ(strays(canvas.surface), 0);
        EXPECT_GT(differing(canvas.surface.screenImage(), blocks(canvas.surface)), 1000);
    }
}

TEST(Sharpness, StrokesAndCornersLieWithinAPixelOfTheScreenOfThePictures)
{
    constexpr void (*strokes[])(QtSurface&, float) = {
        [](QtSurface& surface, float at) { surface.line(at, at, at + 200, at + 550); },
        [](QtSurface& surface, float at) { surface.box(at, at, at + 500, at + 411); },
        [](QtSurface& surface, float at) { surface.circle(at + 100, at + 200, 10); },
        [](QtSurface& surface, float at) { surface.circle(at + 400, at + 400, 203); },
        [](QtSurface& surface, float at) { surface.arc(at + 400, at + 400, 203, 0, 6); },
    };
    for (const double ratio : ratios) {
        for (const float at : {300.0F, 304.0F, 308.0F, 312.0F, 316.0F, 320.0F}) {
            for (const auto stroke : strokes) {
                QtSurface plain;
                QtSurface fine(ratio);
                plain.growTo({80, 80});
                fine.growTo({80, 80});
                stroke(plain, at);
                stroke(fine, at);
                const QRect part = inkedPart(plain.image());
                const QRectF wanted(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
                const QRectF found = inkedPart(fine.image());
                const auto off = {found.left() - wanted.left(), found.top() - wanted.top(),
                                  found.right() - wanted.right(), found.bottom() - wanted.bottom()};
                EXPECT_LE(std::max(off), 1.01) << ratio << ' ' << at << ' ' << (&stroke - strokes);
                EXPECT_GE(std::min(off), -1.01) << ratio << ' ' << at << ' ' << (&stroke - strokes);
            }
        }
    }
}

TEST(Sharpness, WhatIsCleanInThePictureIsCleanOnTheScreen)
{
    for (const double ratio : ratios) {
        SCOPED_TRACE(ratio);
        Canvas erased(ratio);
        erased.drawEverything();
        erased.erase({0, 0, 4601, 3101}, 140);
        EXPECT_EQ(inkedPixels(erased.surface.picture()), 0);
        EXPECT_EQ(inkedPixels(erased.surface.screenImage()), 0);

        Canvas drawnOver(ratio);
        for (const Color color : {black, white}) {
            drawnOver.surface.setForeColor(color);
            for (int i = 0; i < 15; ++i) { // from and to places that are the same pixel of the picture
                const auto at = static_cast<float>(color == white ? 600 + i : 614 - i);
                drawnOver.surface.circle(at + 2000, at, 500);
                drawnOver.surface.line(at, at, at + 900, at + 450);
                drawnOver.surface.box(at, at, at + 900, at + 450);
                drawnOver.surface.setCurrent(at + 900, at);
                drawnOver.surface.print("WiLlIaM 12.5", true);
            }
        }
        EXPECT_EQ(inkedPixels(drawnOver.surface.picture()), 0);
        EXPECT_EQ(inkedPixels(drawnOver.surface.screenImage()), 0);
    }
}

TEST(Sharpness, ScreensOfOtherRatiosShowAllInkAndAreSharpFromThenOn)
{
    Canvas canvas;
    canvas.drawEverything();
    const QImage picture = canvas.surface.picture();
    for (const double ratio : {2.0, 1.5, 3.0, 1.0, 1.25}) {
        EXPECT_TRUE(canvas.surface.setRatio(ratio));
        EXPECT_FALSE(canvas.surface.setRatio(ratio));
        EXPECT_EQ(canvas.surface.picture(), picture);
        EXPECT_EQ(canvas.surface.screenImage(), blocks(canvas.surface));
    }
    canvas.surface.circle(1500, 1500, 1000);
    EXPECT_NE(canvas.surface.screenImage(), blocks(canvas.surface));
    EXPECT_EQ(strays(canvas.surface), 0);
}

TEST(Sharpness, PaperPicturesAndLargerWindowsReachBothImages)
{
    const QImage picture = colourful(500, 70);
    for (const double ratio : ratios) {
        SCOPED_TRACE(ratio);
        Canvas canvas(ratio);
        CanvasSurface& surface = canvas.surface;
        QRegion changed;
        surface.changed = [&](const QRect& part) { changed += part; };
        surface.setPicture(picture);
        EXPECT_TRUE(changed.contains(QRect(0, 0, 300, 200)));
        EXPECT_EQ(surface.screenImage(), blocks(surface));
        EXPECT_LE(surface.screenImage().width(), 302 * ratio); // no more than the window shows
        canvas.drawEverything();
        surface.growTo({600, 250});
        EXPECT_EQ(strays(surface), 0); // the picture's hidden part too
        surface.clear();
        EXPECT_EQ(inkedPixels(surface.screenImage()), 0);
        surface.line(4000, 3000, 8800, 3500);
        surface.growTo({700, 300});
        EXPECT_EQ(strays(surface), 0);
        surface.setBackColor(0x80FFFF);
        EXPECT_EQ(surface.screenImage(), blocks(surface));
        EXPECT_EQ(surface.screenImage().pixel(5, 5), qRgb(0xFF, 0xFF, 0x80));
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
        canvas.surface().circle(300 + 37 * step, 300 + 17 * step, 20 + 7 * step);
        QCoreApplication::processEvents();
    }
    const double ratio = canvas.surface().ratio();
    EXPECT_EQ(ratio, canvas.devicePixelRatioF());
    const auto& shown = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
    const QPoint corner(qRound(7 * ratio), qRound(11 * ratio));
    const QSize size(qFloor(301 * ratio) - 1, qFloor(203 * ratio) - 1);
    EXPECT_EQ(differing(shown.copy(QRect(corner, size)), canvas.surface().screenImage()), 0);
}
