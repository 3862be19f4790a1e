#include "platform/ink/ink.h"

#include "tests/support/paper.h"

#include <gtest/gtest.h>

namespace schemlet {

// Strokes by themselves are in the golden record.
TEST(Ink, DotsTenTwipsApartMergeIntoASolidWireOfEvenWidth)
{
    std::string wire;
    for (const char pixel : {'.', '.', '1', '1', '1', '.', '.'}) {
        wire.append(20, pixel).push_back('\n');
    }
    for (const double start : {3.0, 3.3, 3.67}) {
        Paper paper{20, 7};
        for (int i = -10; i < 45; ++i) {
            ink::circle(paper.image(), {1, 2}, {start + i * 2.0 / 3, start}, 2.0 / 3);
        }
        EXPECT_EQ(paper.text(), wire) << start;
    }
}

} // namespace schemlet
