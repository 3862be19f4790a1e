#include "symbols/gates.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// A flat back, whose lower part is drawn twice, and a chamfered nose. The top edge is 20 twips longer than the bottom
// edge.
constexpr auto andRows =
    strokes(line(0, 0, 0, 250), line(0, 250, 0, -100), line(0, -100, 220, -100), line(0, 250, 200, 250),
            line(200, 250, 300, 150), line(300, 150, 300, 0), line(300, 0, 200, -100));
constexpr auto nandRows = join(andRows, strokes(circle(350, 70, 30)));

// The side lines cross just before the nose and end 20 twips apart.
constexpr auto orRows = strokes(line(-10, -100, 50, 50), line(50, 50, 50, 200), line(50, 200, -10, 300),
                                line(-10, 300, 300, 80), line(-10, -100, 300, 100));
constexpr auto norRows = join(orRows, strokes(circle(320, 100, 30)));

// The outer back ends 20 twips lower than the inner one.
constexpr auto exorRows =
    strokes(line(70, -100, 130, 50), line(130, 50, 130, 200), line(130, 200, 70, 300), line(-20, -100, 50, 50),
            line(50, 50, 50, 200), line(50, 200, -20, 320), line(70, 300, 380, 80), line(70, -100, 380, 100));
constexpr auto exnorRows = join(exorRows, strokes(circle(410, 100, 30)));

constexpr Branch andBranches[] = {{.heading = heading::right, .strokes = andRows, .after = {325, 50}}};
constexpr Branch nandBranches[] = {{.heading = heading::right, .strokes = nandRows, .after = {385, 75}}};
constexpr Branch orBranches[] = {{.heading = heading::right, .strokes = orRows, .after = {300, 90}}};
constexpr Branch norBranches[] = {{.heading = heading::right, .strokes = norRows, .after = {375, 90}}};
constexpr Branch exorBranches[] = {{.before = {80, 0}, .strokes = exorRows, .after = {300, 90}}};
constexpr Branch exnorBranches[] = {{.before = {80, 0}, .strokes = exnorRows, .after = {400, 100}}};

constexpr Symbol gate(std::string_view title, int CanvasState::*answer, std::span<const Branch> branches, Marker marker)
{
    return {.title = title,
            .confirm = gatesConfirm,
            .answer = answer,
            .color = &CanvasState::gatesColor,
            .branches = branches,
            .marker = marker};
}

} // namespace

constexpr Symbol andGate = gate("This draws an AND GATE", &CanvasState::andAnswer, andBranches, Marker::leftFollows);
constexpr Symbol orGate = gate("This draws an OR GATE", &CanvasState::orAnswer, orBranches, Marker::leftFollows);
constexpr Symbol norGate = gate("This draws a NOR GATE", &CanvasState::norAnswer, norBranches, Marker::leftFollows);
constexpr Symbol nandGate = gate("This draws a NAND GATE", &CanvasState::nandAnswer, nandBranches, Marker::leftFollows);
constexpr Symbol exorGate = gate("This draws an EX-OR GATE", &CanvasState::exorAnswer, exorBranches, Marker::stays);
constexpr Symbol exnorGate = gate("This draws an EX-NOR GATE", &CanvasState::exnorAnswer, exnorBranches, Marker::stays);

} // namespace schemlet
