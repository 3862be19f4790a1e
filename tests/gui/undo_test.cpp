#include "platform/ink/changes.h"
#include "platform/qt/canvas_surface.h"

#include <gtest/gtest.h>
#include <ranges>

namespace schemlet {

namespace {

constexpr QSize window(300, 200);

struct CanvasUndo : testing::TestWithParam<double> {
    CanvasSurface canvas;

    CanvasUndo()
    {
        canvas.growTo(window);
        canvas.setRatio(GetParam());
    }

    InkChange draw()
    {
        canvas.line({1000, 1003}, {3500, 2011});
        canvas.print("12.5 mOhm", false);
        return canvas.takeChange();
    }
};

QImage colorfulPicture(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(Qt::yellow));
    picture.setPixelColor(size.width() - 1, size.height() - 1, Qt::blue);
    return picture;
}

using Step = void (*)(CanvasSurface&);

constexpr Step steps[] = {
    [](CanvasSurface& canvas) {
        canvas.circle({1500, 1500}, 10);
    },
    [](CanvasSurface& canvas) {
        canvas.box({-100, -100}, {4490, 2990});
    },
    [](CanvasSurface& canvas) { canvas.setBackColor(0x0000FF); },
    [](CanvasSurface& canvas) {
        canvas.arc({1600, 1500}, 500, 0, 3);
    },
    [](CanvasSurface& canvas) {
        canvas.setPicture(colorfulPicture({700, 150}));
    },
    [](CanvasSurface& canvas) {
        canvas.line({8000, 2000}, {12000, 2900});
    }, // in what the window does not show
    [](CanvasSurface& canvas) {
        canvas.setBackColor(white);
        canvas.clear();
    },
    [](CanvasSurface& canvas) {
        canvas.setCurrent({300, 300});
        canvas.print("WiLlIaM", true);
    },
    [](CanvasSurface& canvas) {
        canvas.setPicture(colorfulPicture({100, 100}));
    },
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Ratio, CanvasUndo, testing::Values(1, 1.25, 2));

TEST_P(CanvasUndo, BringsBackEveryPixelOfPictureAndScreen)
{
    std::vector<InkChange> changes;
    std::vector<std::pair<QImage, QImage>> images{{canvas.picture(), canvas.screenImage()}};
    for (const Step step : steps) {
        step(canvas);
        changes.push_back(canvas.takeChange());
        EXPECT_FALSE(changes.back().empty());
        EXPECT_TRUE(canvas.takeChange().empty());
        images.emplace_back(canvas.picture(), canvas.screenImage());
    }
    const auto expectImages = [&](std::size_t step) {
        EXPECT_EQ(canvas.picture(), images[step].first) << step;
        EXPECT_EQ(canvas.screenImage(), images[step].second) << step;
        EXPECT_TRUE(canvas.takeChange().empty());
    };
    for (std::size_t step = changes.size(); step-- > 0;) {
        canvas.exchange(changes[step]);
        expectImages(step);
    }
    for (std::size_t step = 0; step < changes.size(); ++step) {
        canvas.exchange(changes[step]);
        expectImages(step + 1);
    }
}

TEST_P(CanvasUndo, KeepsTheRoomOfALargerWindowWithThatPapersColor)
{
    InkChange line = draw();
    canvas.setBackColor(0x0000FF);
    InkChange red = canvas.takeChange();
    canvas.growTo({500, 400});
    const QImage redAndLarge = canvas.picture();
    const QImage redScreen = canvas.screenImage();
    canvas.exchange(red);
    canvas.exchange(line);
    QImage blank = redAndLarge;
    blank.fill(Qt::white);
    EXPECT_EQ(canvas.picture(), blank);
    EXPECT_EQ(canvas.screenImage().size(), redScreen.size());
    canvas.exchange(line);
    canvas.exchange(red);
    EXPECT_EQ(canvas.picture(), redAndLarge);
    EXPECT_EQ(canvas.screenImage(), redScreen);
}

TEST_P(CanvasUndo, KnowsInkThatCameJustBeforeTheWindowGrewOrWentToAnotherScreen)
{
    for (const double ratio : {GetParam(), 1.75}) {
        const float edge = static_cast<float>(canvas.picture().width() * twipsPerPixel);
        canvas.circle({edge - 20, 1500}, 10);
        canvas.growTo(canvas.picture().size() + QSize(100, 100));
        canvas.circle({edge + 20, 1500}, 10);
        canvas.setRatio(ratio);
        canvas.circle({edge + 60, 1500}, 10);
        InkChange change = canvas.takeChange();
        canvas.exchange(change);
        for (const QImage& shown : {canvas.picture(), canvas.screenImage()}) {
            QImage blank = shown;
            blank.fill(Qt::white);
            EXPECT_EQ(shown, blank) << ratio;
        }
    }
}

TEST_P(CanvasUndo, ShowsThePicturesPixelsOnAScreenOfAnotherRatio)
{
    const QImage blank = canvas.picture();
    InkChange line = draw();
    const QImage drawn = canvas.picture();
    canvas.setRatio(1.75);
    for (const QImage& expected : {blank, drawn}) {
        canvas.exchange(line);
        EXPECT_EQ(canvas.picture(), expected);
        CanvasSurface enlarged;
        enlarged.growTo(window);
        enlarged.setPicture(expected);
        enlarged.setRatio(1.75);
        EXPECT_EQ(canvas.screenImage(), enlarged.screenImage());
    }
}

TEST_P(CanvasUndo, ReportsWhatItChanged)
{
    InkChange line = draw();
    QRegion changed;
    canvas.changed = [&](const QRect& part) { changed += part; };
    canvas.exchange(line);
    EXPECT_TRUE(changed.contains(QRect(66, 66, 168, 69)));
    EXPECT_FALSE(changed.contains(QPoint(20, 20)));
}

} // namespace schemlet
