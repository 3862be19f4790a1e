#include "platform/ink/ink.h"

#include "tests/support/paper.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr ink::Pen thin{1, 2};
constexpr ink::Pen eraser{1, 10};

long inked(const Paper& paper)
{
    return std::ranges::count(paper.pixels, 1U);
}

} // namespace

TEST(Ink, ZeroLengthLinesLeaveTheSameDotEverywhere)
{
    for (const double fraction : {0.0, 0.3, 0.49}) {
        Paper paper{4, 4};
        ink::line(paper.image(), thin, {2 + fraction, 2 + fraction}, {2 + fraction, 2 + fraction});
        EXPECT_EQ(paper.text(), "....\n.11.\n.11.\n....\n") << fraction;
    }
}

TEST(Ink, DotsTenTwipsApartMergeIntoASolidWireOfEvenWidth)
{
    std::string wire;
    for (const char pixel : {'.', '.', '1', '1', '1', '.', '.'}) {
        wire.append(20, pixel).push_back('\n');
    }
    for (const double start : {3.0, 3.3, 3.67}) {
        Paper paper{20, 7};
        for (int i = -10; i < 45; ++i) {
            ink::circle(paper.image(), thin, {start + i * 2.0 / 3, start}, 2.0 / 3);
        }
        EXPECT_EQ(paper.text(), wire) << start;
    }
}

TEST(Ink, CirclesOfEveryUsedRadiusAreSymmetricAndClosed)
{
    for (int twips = 10; twips <= 350; twips += 10) {
        SCOPED_TRACE(twips);
        constexpr int side = 64;
        Paper paper{side, side};
        const ink::Area area = ink::circle(paper.image(), thin, {32.2, 31.7}, twips / 15.0);
        const int width = area.right - area.left;
        ASSERT_EQ(width, area.bottom - area.top);
        for (int y = 0; y < width; ++y) {
            long runs = 0;
            for (int x = 0; x < width; ++x) {
                const auto pixel = paper.at(area.left + x, area.top + y);
                ASSERT_EQ(pixel, paper.at(area.right - 1 - x, area.top + y));
                ASSERT_EQ(pixel, paper.at(area.left + x, area.bottom - 1 - y));
                ASSERT_EQ(pixel, paper.at(area.left + y, area.top + x));
                runs += pixel != 0 && (x == 0 || paper.at(area.left + x - 1, area.top + y) == 0) ? 1 : 0;
            }
            ASSERT_GE(runs, 1);
            ASSERT_LE(runs, 2);
        }
    }
}

TEST(Ink, WideRingsAroundAPlaceBlotOutAWholePatch)
{
    Paper paper{40, 40};
    for (const double offset : {0.0, -2.0 / 3, 2.0 / 3, -4.0 / 3, 4.0 / 3, -2.0, 2.0}) {
        ink::circle(paper.image(), eraser, {20 + offset, 20}, 100 / 15.0);
        ink::circle(paper.image(), eraser, {20, 20 + offset}, 100 / 15.0);
    }
    for (int y = 12; y < 28; ++y) {
        for (int x = 12; x < 28; ++x) {
            EXPECT_EQ(paper.at(x, y), 1) << x << ' ' << y;
        }
    }
}

TEST(Ink, ReportsAnAreaThatHoldsEveryInkedPixel)
{
    const auto check = [](auto draw) {
        Paper paper{30, 30};
        const ink::Area area = draw(paper.image());
        for (int place = 0; place < 30 * 30; ++place) {
            const int x = place % 30;
            const int y = place / 30;
            const bool inside = x >= area.left && x < area.right && y >= area.top && y < area.bottom;
            EXPECT_TRUE(inside || paper.at(x, y) == 0) << x << ' ' << y;
        }
    };
    for (int step = -3; step < 20; ++step) {
        const double shift = step * 1.7;
        check([&](const ink::Image& image) { return ink::line(image, thin, {shift, 3}, {20, shift}); });
        check([&](const ink::Image& image) { return ink::circle(image, thin, {shift, 12}, 7.3); });
        check([&](const ink::Image& image) { return ink::arc(image, thin, {shift, 12}, 7.3, 5.0, 1.5); });
    }
}

TEST(Ink, ClipsWhatLiesOutsideHoweverFar)
{
    Paper paper{10, 10};
    for (const double far : {-3e9, -40.0, 50.0, 3e9}) {
        ink::line(paper.image(), thin, {far, far}, {far, far + 5});
        ink::circle(paper.image(), thin, {far, 5}, 10);
        ink::arc(paper.image(), thin, {5, far}, 10, 3.5, 0);
    }
    EXPECT_EQ(inked(paper), 0);

    ink::line(paper.image(), thin, {-3e9, 5}, {3e9, 5});
    EXPECT_EQ(inked(paper), 20);
    ink::circle(paper.image(), eraser, {5, 5}, 1);
    EXPECT_GT(inked(paper), 60);
}

} // namespace schemlet
