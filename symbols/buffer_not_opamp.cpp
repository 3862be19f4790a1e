#include "symbols/buffer_not_opamp.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

constexpr auto bufferRight =
    strokes(line(0, 0, 0, 150), line(0, 150, 0, -150), line(0, -150, 300, 0), line(300, 0, 0, 150));
constexpr auto bufferLeft = dxNegated(bufferRight);
// The first row is part of the base, which the second row draws.
constexpr auto bufferUp =
    strokes(line(0, 0, -100, 0), line(-150, 0, 150, 0), line(150, 0, 0, -300), line(0, -300, -150, 0));
constexpr auto bufferDown = dyNegated(bufferUp);

// To the right, the pen ends at the tip. In the other directions it ends ten twips beyond the tip.
constexpr Branch bufferBranches[] = {{.heading = heading::right, .strokes = bufferRight, .after = {300, 0}},
                                     {.heading = heading::left, .strokes = bufferLeft, .after = {-310, 0}},
                                     {.heading = heading::up, .strokes = bufferUp, .after = {0, -310}},
                                     {.heading = heading::down, .strokes = bufferDown, .after = {0, 310}}};

// The pen is not on the axis of the triangle, and the back reaches higher to the left than to the right.
constexpr auto notRight = strokes(line(0, 0, 0, 250), line(0, 250, 0, -75), line(0, -75, 300, 75),
                                  line(300, 75, 0, 250), circle(330, 75, 30));
constexpr auto notLeft = strokes(line(0, 0, 0, 250), line(0, 250, 0, -100), line(0, -100, -300, 75),
                                 line(-300, 75, 0, 250), circle(-330, 75, 30));
constexpr auto notUp = strokes(line(0, 0, -100, 0), line(-100, 0, 250, 0), line(250, 0, 75, -300),
                               line(75, -300, -100, 0), circle(75, -330, 30));
constexpr auto notDown = dyNegated(notUp);

// The pen also moves sideways to the output, except upwards.
constexpr Branch notBranches[] = {{.heading = heading::right, .strokes = notRight, .after = {375, 75}},
                                  {.heading = heading::left, .strokes = notLeft, .after = {-375, 75}},
                                  {.heading = heading::up, .strokes = notUp, .after = {0, -375}},
                                  {.heading = heading::down, .strokes = notDown, .after = {75, 375}}};

constexpr auto opampRows =
    strokes(line(0, -300, 0, 300), line(0, 300, 400, 0), line(400, 0, 0, -300), label(50, -300, "_"),
            line(0, -150, -300, -150), label(50, 0, "+"), line(0, 100, -300, 100), line(400, 0, 600, 0));
constexpr Branch opampBranches[] = {{.strokes = opampRows}};

} // namespace

constexpr Symbol bufferSymbol{.title = "This draws a BUFFER",
                              .confirm = bufferConfirm,
                              .answer = &CanvasState::bufferAnswer,
                              .color = &CanvasState::bufferColor,
                              .branches = bufferBranches,
                              .marker = Marker::leftFollows};
constexpr Symbol notGate{.title = "This draws a NOT GATE",
                         .confirm = gatesConfirm,
                         .answer = &CanvasState::notAnswer,
                         .color = &CanvasState::gatesColor,
                         .branches = notBranches,
                         .marker = Marker::leftFollows};
constexpr Symbol opAmp{.title = "This draws an OP-AMP",
                       .confirm = opampConfirm,
                       .answer = &CanvasState::opampAnswer,
                       .color = &CanvasState::opampColor,
                       .branches = opampBranches};

} // namespace schemlet
