#include "platform/ink/ink.h"

#include "tests/support/paper.h"

#include <gtest/gtest.h>

namespace schemlet {

// What holds wherever strokes lie; single ones are in the golden record.

namespace {

constexpr ink::Pen thin{1, 2};

} // namespace

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

TEST(Ink, ReportsAnAreaThatHoldsEveryInkedPixelAndClipsWhatLiesOutsideHoweverFar)
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
        return area.left == area.right;
    };
    for (const double shift : {-3e9, -40.0, -5.1, -3.4, -1.7, 0.0, 1.7, 5.1, 17.0, 28.9, 32.3, 50.0, 3e9}) {
        const bool far = shift < -30 || shift > 40;
        const ink::Place aside{shift, 12};
        EXPECT_FALSE(check([&](const ink::Image& image) { return ink::line(image, thin, aside, {-shift, 20}); }));
        EXPECT_EQ(check([&](const ink::Image& image) { return ink::circle(image, thin, aside, 7.3); }), far);
        EXPECT_EQ(check([&](const ink::Image& image) { return ink::arc(image, thin, aside, 7.3, 5.0, 1.5); }), far);
    }
}

} // namespace schemlet
