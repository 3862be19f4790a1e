#include "canvas/jumper_ground.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

TEST(Jumper, HopsAlongTheHeading)
{
    struct Case {
        int heading;
        const char* arc;
        const char* pen;
    };
    const Case cases[] = {{heading::right, "arc 1700 1500 100 3.5 0\n", "1800 1500"},
                          {heading::left, "arc 1500 1500 100 3.5 0\n", "1400 1500"},
                          {heading::up, "arc 1600 1390 100 5 1.5\n", "1600 1280"},
                          {heading::down, "arc 1600 1610 100 5 1.5\n", "1600 1720"},
                          {0, "", "1600 1500"},
                          {7, "", "1600 1500"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.heading);
        Bench bench;
        bench.form.heading = c.heading;
        bench.surface.setForeColor(0xFF0000);
        jumper(bench.form);
        EXPECT_EQ(bench.drawn(), c.arc);
        EXPECT_EQ(bench.pen(), c.pen);
        EXPECT_EQ(bench.marker(), "1600 1200");
        EXPECT_EQ(bench.surface.foreColor, 0xFF0000U);
    }
}

TEST(Ground, HangsFourBarsFromThePenWhateverTheHeading)
{
    Bench bench;
    bench.form.heading = heading::up;
    ground(bench.form);
    EXPECT_EQ(bench.drawn(), "line 1400 1500 1800 1500\n"
                             "line 1475 1555 1725 1555\n"
                             "line 1525 1600 1675 1600\n"
                             "line 1575 1650 1625 1650\n");
    EXPECT_EQ(bench.pen(), "1600 1500");
    EXPECT_EQ(bench.marker(), "1600 1200");
}
