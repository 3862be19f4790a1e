#include "canvas/run.h"

#include "tests/support/rig.h"

namespace schemlet {

namespace {

struct Case {
    std::string_view before; ///< what is there already
    std::string_view script;
    double x = 0, y = 0; ///< where the pen ends
};

} // namespace

// The pen starts at 1600 1500. Pixels are 15 twips; a line of the line tool is 2 pixels thick, a wire 3.
TEST(Run, EndsAtTheNextInkOrWhereTheWalkBegan)
{
    const std::string_view thickLine = "e; click linee; press left 600 300; release left 600 600; e; ";
    const std::string_view wire = "press left 300 300; release left 300 300; down; down; down; down; ";
    const std::string_view crossing = "press left 2100 1400; release left 2100 1400; down; down; down; down; j; "
                                      "press left 1600 1500; release left 1600 1500; ";
    for (const auto& [before, script, x, y] : std::initializer_list<Case>{
             {"", "click runRight", 2100, 1500},
             {"", "right; right; up; click runLeft", 1600, 1450},
             {"", "press left 900 900; release left 900 900; up; up; right; click runDown", 950, 900},
             {"", "up; right; click new < no; click runDown; right; click runUp; click runLeft", 1600, 1500},
             {"", "right; up; click runRight; click runDown", 2150, 1500},
             // Less than a pixel from the column, the pen is there already.
             {"",
              "press left 1612 1500; release left 1612 1500; left; press left 1599 1500; release left 1599 1500; "
              "click runRight",
              2099, 1500},
             // The middle of thin ink, the first pixel of thick ink
             {wire, "press left 900 450; release left 900 450; click runLeft", 307.5, 450},
             {wire, "press left 300 900; release left 300 900; click runUp", 300, 502.5},
             {thickLine, "press left 900 450; release left 900 450; click runLeft", 667.5, 450},
             {thickLine, "press left 300 450; release left 300 450; click runRight", 532.5, 450},
             // Ink up to five pixels away is behind the pen, and so is ink joined to the pen's pixel.
             {"click linee; press left 1275 300; release left 1275 600; press left 1335 300; release left 1335 600; ",
              "press left 1200 450; release left 1200 450; click runRight", 1335, 450},
             {"click linee; press left 1305 300; release left 1305 600; ",
              "press left 1200 450; release left 1200 450; click runRight", 1305, 450},
             {"click linee; press left 300 450; release left 900 450; press left 1500 300; release left 1500 600; ",
              "press left 300 450; release left 300 450; click runRight", 1500, 450},
             // The wire at the walk's beginning is met in its column, not in the middle of its pixels.
             {"", "press left 1207 900; release left 1207 900; down; down; right; right; up; click runLeft", 1207, 950},
             {wire, "press left 450 450; release left 450 450; right; up; click runLeft", 450, 400},
             // The visible canvas
             {"", "canvas 2000 1600; click runRight", 1987.5, 1500},
             {"", "canvas 2000 1600; click runRight; click runRight; click runDown", 1987.5, 1597.5},
             {"click linee; press left 1020 300; release left 1020 600; ",
              "press left 900 450; release left 900 450; canvas 1000 1600; click runRight", 997.5, 450},
             {wire, "press left 1200 450; release left 1200 450; canvas 1000 1600; click runLeft", 700, 450},
             // Automatic jumpers
             {crossing, "click runRight < no", 2107.5, 1500},
             {crossing, "click runRight < yes", 2700, 1500},
             {crossing, "canvas 2300 1600; click runRight < yes", 2287.5, 1500},
             {crossing, "j; click runRight", 2107.5, 1500},
             {"click linee; press left 1590 1500; release left 1950 1500; j; ",
              "press left 1600 1500; release left 1600 1500; click runRight < no", 1600, 1500},
             // No wire
             {"e; ", "click runUp", 1600, 1500},
             {"", "click turnLeft", 1600, 1500}}) {
        const std::string whole = std::string(before) + std::string(script);
        SCOPED_TRACE(whole);
        Rig rig;
        rig.run(whole);
        EXPECT_EQ(placed(rig.form.x, rig.form.y), placed(x, y));
    }
}

} // namespace schemlet
