#include "symbols/diodes.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// The bar reaches 20 twips farther down than up.
constexpr auto zenerRows = strokes(line(0, 150, 0, -150), line(0, -150, 200, 0), line(200, 0, 0, 150),
                                   line(200, -150, 200, 170), line(200, -150, 300, -200), line(200, 170, 100, 220));
constexpr Branch zenerBranches[] = {{.strokes = zenerRows, .after = {230, 0}}};

constexpr auto pnRight = strokes(line(0, 0, 0, 150), line(0, 150, 0, -150), line(0, -150, 200, 0), line(200, 0, 0, 150),
                                 line(200, 0, 200, -150), line(200, -150, 200, 170));
constexpr auto pnLeft = dxNegated(pnRight);
constexpr auto pnUp = strokes(line(0, 0, -150, 0), line(-150, 0, 150, 0), line(150, 0, 0, -200), line(0, -200, -150, 0),
                              line(-150, -200, 150, -200));
constexpr auto pnDown = dyNegated(pnUp);
constexpr Branch pnBranches[] = {{.heading = heading::right, .strokes = pnRight, .after = {230, 0}},
                                 {.heading = heading::left, .strokes = pnLeft, .after = {-220, 0}},
                                 {.heading = heading::up, .strokes = pnUp, .after = {0, -220}},
                                 {.heading = heading::down, .strokes = pnDown, .after = {0, 220}}};

// To the right, the NP diode has strokes of its own. In the other directions, the pen moves first, and the strokes of a
// PN diode that points back are drawn from there.
constexpr auto npRight =
    strokes(line(0, -150, 0, 150), line(0, 0, 200, 150), line(0, 0, 200, -150), line(200, -150, 200, 150));
constexpr Branch npBranches[] = {
    {.heading = heading::right, .strokes = npRight, .after = {220, 0}},
    {.heading = heading::left, .before = {-220, 0}, .origin = Origin::movedPen, .strokes = pnRight},
    {.heading = heading::up, .before = {0, -220}, .origin = Origin::movedPen, .strokes = pnDown},
    {.heading = heading::down, .before = {0, 220}, .origin = Origin::movedPen, .strokes = pnUp}};

constexpr auto tunnelRows = strokes(line(0, 0, 0, 200), circle(0, 300, 300), line(-100, 200, 110, 200),
                                    line(110, 200, 0, 400), line(-100, 200, 0, 400), line(-200, 400, 200, 400),
                                    line(200, 400, 200, 300), line(0, 400, 0, 600), line(-200, 400, -200, 300));
constexpr Branch tunnelBranches[] = {{.strokes = tunnelRows, .after = {0, 620}}};

constexpr Symbol diodeSymbol(std::string_view title, int CanvasState::*answer, std::span<const Branch> branches,
                             ColorAfter colorAfter, int CanvasState::*count)
{
    return {.title = title,
            .confirm = diodesConfirm,
            .answer = answer,
            .color = &CanvasState::diodesColor,
            .branches = branches,
            .colorAfter = colorAfter,
            .count = count};
}

} // namespace

constexpr Symbol zenerDiode =
    diodeSymbol("This draws a ZENER DIODE", &CanvasState::diodeAnswer, zenerBranches, ColorAfter::toBlack, nullptr);
constexpr Symbol pnDiode = diodeSymbol("This draws a PN DIODE", &CanvasState::diodAnswer, pnBranches,
                                       ColorAfter::toBlackUnlessAsked, &CanvasState::diodeCount);
constexpr Symbol npDiode = diodeSymbol("This draws a NP DIODE", &CanvasState::npdiodeAnswer, npBranches,
                                       ColorAfter::toBlack, &CanvasState::diodeCount);
constexpr Symbol tunnelDiode = diodeSymbol("This draws a TUNNEL DIODE", &CanvasState::tunneldiodeAnswer, tunnelBranches,
                                           ColorAfter::toBlack, nullptr);

} // namespace schemlet
