#include "platform/ink/finer_ink.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/qt_surface.h"
#include "shell/product_picture.h"
#include "tests/gui/pixels.h"
#include "tests/support/sample_files.h"

#include <QBackingStore>
#include <QTest>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

/// A surface of 200 x 200 pixels, and the part that changed.
struct QtSurfaceTest : testing::Test {
    QtSurface surface;
    QRect changed;

    QtSurfaceTest()
    {
        surface.growTo({200, 200});
        surface.changed = [this](const QRect& part) { changed |= part; };
    }
};

/// Draws and wipes with every kind of stroke, also between pixels and over the edges.
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
    for (int i = 0; i < 15; ++i) { // each at another place in the same pixels, the last ones in white
        const auto at = static_cast<float>(2200 + i);
        surface.setForeColor(i < 7 ? black : white);
        surface.circle({at + 1500, at}, 300);
        surface.box({at, at}, {at + 900, at + 450});
        surface.setCurrent({at + 900, at});
        surface.print("WiLlIaM 12.5", true);
    }
}

/// A canvas of 300 x 200 pixels.
struct SharpCanvas : testing::TestWithParam<double> {
    CanvasSurface canvas;
    SharpCanvas() { canvas.growTo({300, 200}); }
};

/// The screen image after one more call of ink::enlarge or ink::reconcile for all of it. enlarge() shows the picture's
/// own pixels; reconcile() changes nothing if every stroke was reconciled.
QImage after(decltype(ink::enlarge)& bring, const CanvasSurface& surface)
{
    const auto pixels = [](QImage& image, double scale) {
        auto* const first = reinterpret_cast<std::uint32_t*>(image.bits());
        return ink::Image{first, image.width(), image.height(), image.width(), scale};
    };
    QImage picture = surface.picture();
    QImage screen = surface.screenImage();
    const QSize seen = picture.size().boundedTo(screen.size() / surface.ratio() + QSize(1, 1));
    bring(pixels(picture, 1), pixels(screen, surface.ratio()), {0, 0, seen.width(), seen.height()});
    return screen;
}

} // namespace

TEST_F(QtSurfaceTest, ReadsBackColoursButNoneOutside)
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

TEST_F(QtSurfaceTest, PrintsTextWithoutSoftEdgesAtTheCurrentPoint)
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

INSTANTIATE_TEST_SUITE_P(Ratio, SharpCanvas, testing::Values(1.25, 1.5, 1.75, 2, 3));

TEST_P(SharpCanvas, HasTheSamePictureOnEveryScreen)
{
    CanvasSurface plain;
    plain.growTo({300, 200});
    drawEverything(plain);
    EXPECT_EQ(&plain.screenImage(), &plain.picture()); // no second image
    EXPECT_GT(inkedPixels(plain.picture()), 2000);

    canvas.setRatio(GetParam());
    drawEverything(canvas);
    EXPECT_EQ(canvas.picture(), plain.picture());
    EXPECT_EQ(canvas.current().x, plain.current().x);
    EXPECT_EQ(canvas.screenImage().size(), QSize(qCeil(301 * GetParam()), qCeil(201 * GetParam())));
    EXPECT_EQ(canvas.screenImage(), after(ink::reconcile, canvas));
    QtSurface fine(GetParam());
    fine.growTo({301, 201});
    drawEverything(fine);
    const int fromBlocks = differing(canvas.screenImage(), after(ink::enlarge, canvas));
    EXPECT_GT(fromBlocks, 1000);
    EXPECT_LT(differing(canvas.screenImage(), fine.image()), fromBlocks);
}

TEST_P(SharpCanvas, KeepsPictureAndScreenImageAlike)
{
    const QImage picture = colourful(500, 70);
    for (const double ratio : {2.25, GetParam(), 1.0}) {
        SCOPED_TRACE(ratio);
        canvas.setBackColor(white);
        drawEverything(canvas);
        const QImage before = canvas.picture();
        EXPECT_TRUE(canvas.setRatio(ratio));
        EXPECT_FALSE(canvas.setRatio(ratio));
        EXPECT_EQ(canvas.picture(), before);
        EXPECT_EQ(canvas.screenImage(), after(ink::enlarge, canvas));
        QRegion changed;
        canvas.changed = [&](const QRect& part) { changed += part; };
        canvas.setPicture(picture);
        EXPECT_TRUE(changed.contains(QRect(0, 0, 300, 200)));
        EXPECT_EQ(canvas.screenImage(), after(ink::enlarge, canvas));
        drawEverything(canvas);
        canvas.growTo(canvas.picture().size() + QSize(60, 20));
        EXPECT_EQ(canvas.screenImage(),
                  after(ink::reconcile, canvas)); // also where the window did not show the picture
        canvas.clear();
        EXPECT_EQ(inkedPixels(canvas.screenImage()), 0);
        canvas.line({4000, 2000}, {8800, 3500});
        EXPECT_EQ(canvas.screenImage(), after(ink::reconcile, canvas));
        canvas.setBackColor(0x80FFFF);
        EXPECT_EQ(canvas.screenImage(), after(ink::enlarge, canvas));
        EXPECT_EQ(canvas.screenImage().pixel(5, 5), qRgb(0xFF, 0xFF, 0x80));
        canvas.changed = nullptr;
    }
}

TEST(Sharpness, WindowShowsEveryPixelOfTheImage)
{
    QWidget window;
    CanvasWidget canvas(&window);
    canvas.setGeometry(7, 11, 301, 203); // between two screen pixels at some ratios
    window.resize(320, 230);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    canvas.report = [](const Event&) {};
    for (int i = 0; i < 100; ++i) { // many small repaints
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
