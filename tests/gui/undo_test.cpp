#include "platform/ink/changes.h"
#include "platform/qt/canvas_surface.h"
#include "tests/gui/pixels.h"
#include "tests/support/sample_files.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr QSize window(300, 200);

struct CanvasUndo : testing::TestWithParam<double> {
    CanvasSurface canvas;
    std::vector<InkChange> steps;
    std::vector<std::pair<QImage, QImage>> images; ///< before each step and at the end

    CanvasUndo()
    {
        canvas.growTo(window);
        canvas.setRatio(GetParam());
        images.emplace_back(canvas.picture(), canvas.screenImage());
    }

    InkChange draw()
    {
        canvas.line({1000, 1003}, {3500, 2011});
        canvas.print("12.5 mOhm", false);
        return canvas.takeChange();
    }

    void endStep()
    {
        steps.push_back(canvas.takeChange());
        EXPECT_FALSE(steps.back().empty());
        EXPECT_TRUE(canvas.takeChange().empty());
        images.emplace_back(canvas.picture(), canvas.screenImage());
    }

    void exchange(std::size_t step, std::size_t image)
    {
        const QImage before = canvas.picture();
        QRegion reported;
        canvas.changed = [&](const QRect& part) { reported += part; };
        canvas.exchange(steps[step]);
        canvas.changed = {};
        EXPECT_EQ(canvas.picture(), images[image].first) << step;
        EXPECT_EQ(canvas.screenImage(), images[image].second) << step;
        EXPECT_TRUE(canvas.takeChange().empty());
        if (before.size() == canvas.picture().size()) {
            QRect differing;
            visit(before, [&](int x, int y) {
                if (before.pixel(x, y) != canvas.picture().pixel(x, y)) {
                    differing |= QRect(x, y, 1, 1);
                    EXPECT_TRUE(reported.contains(QPoint(x, y))) << step;
                }
            });
            if (GetParam() == 1) { // on a sharp screen, undo of a picture makes the screen's image again
                EXPECT_TRUE(differing.adjusted(-9, -9, 9, 9).contains(reported.boundingRect())) << step;
            }
        }
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Ratio, CanvasUndo, testing::Values(1, 1.25, 2));

TEST_P(CanvasUndo, RestoresEveryPixelOfPictureAndScreen)
{
    canvas.circle({1500, 1500}, 10);
    endStep();
    canvas.box({-100, -100}, {4490, 2990});
    endStep();
    canvas.setBackColor(0x0000FF);
    endStep();
    canvas.arc({1600, 1500}, 500, 0, 3);
    endStep();
    canvas.setPicture(colourful(700, 150));
    endStep();
    canvas.line({8000, 2000}, {12000, 2900}); // in a part that the window does not show
    endStep();
    canvas.setBackColor(white);
    canvas.clear();
    endStep();
    canvas.setCurrent({300, 300});
    canvas.print("WiLlIaM", true);
    endStep();
    canvas.setPicture(colourful(100, 100));
    endStep();
    for (std::size_t step = steps.size(); step-- > 0;) {
        exchange(step, step);
    }
    for (std::size_t step = 0; step < steps.size(); ++step) {
        exchange(step, step + 1);
    }
}

TEST_P(CanvasUndo, FillsTheRoomOfALargerWindowWithPaper)
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

TEST_P(CanvasUndo, UndoesInkFromBeforeTheWindowGrewOrChangedScreens)
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

} // namespace schemlet
