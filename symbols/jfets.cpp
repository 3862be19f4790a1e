#include "symbols/jfets.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

constexpr auto nRows = strokes(circle(0, 50, 50), label(150, -50, "D"), line(0, 100, 0, 650), line(0, 650, -300, 650),
                               line(-300, 550, -300, 1050), label(-600, 550, "G"), line(-300, 800, -800, 800),
                               line(-300, 800, -400, 900), line(-300, 800, -400, 700), line(-300, 950, 0, 950),
                               line(0, 950, 0, 1550), circle(0, 1600, 50), label(150, 1500, "S"));
constexpr auto pArrow = strokes(line(-500, 800, -400, 900), line(-500, 800, -400, 700));
constexpr auto pRows = join(rows<1, 7>(nRows), pArrow, rows<10, 13>(nRows));

constexpr Branch nBranches[] = {{.before = {0, 50}, .strokes = nRows, .after = {0, 1610}}};
constexpr Branch pBranches[] = {{.before = {0, 50}, .strokes = pRows, .after = {0, 1610}}};

} // namespace

constexpr Symbol nChannelJfet{.title = "This draws an N-CHANNEL JFET",
                              .confirm = jfetConfirm,
                              .answer = &CanvasState::nchannelAnswer,
                              .color = &CanvasState::transformerColor,
                              .branches = nBranches};
constexpr Symbol pChannelJfet{.title = "This draws a P-CHANNEL JFET",
                              .confirm = jfetConfirm,
                              .answer = &CanvasState::pchannelAnswer,
                              .color = &CanvasState::transformerColor,
                              .branches = pBranches};

} // namespace schemlet
