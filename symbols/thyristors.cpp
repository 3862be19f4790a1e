#include "symbols/thyristors.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// The triangle's top side reaches farther to the right than to the left.
constexpr auto scrRows =
    strokes(circle(0, 50, 50), label(150, -50, "A"), line(0, 100, 0, 650), circle(0, 750, 300),
            line(-100, 650, 110, 650), line(110, 650, 0, 850), line(-100, 650, 0, 850), line(0, 850, -100, 1050),
            line(-100, 1050, -500, 1050), circle(-530, 1050, 50), label(-800, 950, "G"), line(-200, 850, 200, 850),
            line(0, 850, 0, 1550), circle(0, 1600, 50), label(150, 1500, "C"));

// "T3" has no place of its own. It is printed where "T2" left the current point: at the canvas's left edge, one line
// lower.
constexpr auto triacRows =
    strokes(circle(0, 50, 50), label(150, -50, "T1"), line(0, 100, 0, 650), circle(100, 750, 300),
            line(-100, 650, 110, 650), line(110, 650, 0, 850), line(-100, 650, 0, 850), line(50, 850, -50, 1030),
            line(-50, 1030, -500, 1030), circle(-530, 1030, 50), label(-800, 950, "G"), line(-100, 850, 300, 850),
            line(300, 850, 200, 650), line(200, 650, 100, 850), line(100, 650, 300, 650), line(200, 850, 200, 1550),
            circle(200, 1600, 50), label(300, 1500, "T2"), text("T3"));

constexpr auto diacRows = strokes(circle(0, 50, 50), label(150, -50, "T1"), line(0, 100, 0, 650), circle(0, 750, 300),
                                  line(-200, 650, 200, 650), line(-200, 850, 200, 850), line(200, 650, 100, 850),
                                  line(100, 850, 0, 650), line(-200, 850, -100, 650), line(-100, 650, 0, 850),
                                  line(0, 850, 0, 1550), circle(0, 1600, 50), label(150, 1500, "T2"));

// The emitter is the terminal labelled "G".
constexpr auto ujtRows =
    strokes(circle(0, 50, 50), label(150, -50, "B2"), line(0, 100, 0, 650), line(0, 650, -300, 650),
            line(-300, 550, -300, 1050), line(-600, 650, -300, 800), line(-300, 800, -400, 900),
            line(-300, 800, -400, 650), label(-1300, 350, "G"), line(-600, 650, -1200, 650), circle(-1250, 650, 50),
            line(-300, 950, 0, 950), line(0, 950, 0, 1550), circle(0, 1600, 50), label(150, 1500, "B1"));

// Each lower terminal has its centre 1600 twips below the pen, but the pen moves by different distances.
constexpr Branch scrBranches[] = {{.before = {0, 50}, .strokes = scrRows, .after = {0, 1600}}};
constexpr Branch triacBranches[] = {{.before = {0, 50}, .strokes = triacRows, .after = {200, 1620}}};
constexpr Branch diacBranches[] = {{.before = {0, 50}, .strokes = diacRows, .after = {0, 1620}}};
constexpr Branch ujtBranches[] = {{.before = {0, 50}, .strokes = ujtRows, .after = {0, 1610}}};

constexpr Symbol thyristor(std::string_view title, int CanvasState::*answer, std::span<const Branch> branches)
{
    return {.title = title, .confirm = thyristorsConfirm, .answer = answer, .branches = branches};
}

} // namespace

constexpr Symbol scrThyristor = thyristor("This draws a SCR THYRISTOR", &CanvasState::SCRAnswer, scrBranches);
constexpr Symbol triacThyristor = thyristor("This draws a TRIAC THYRISTOR", &CanvasState::TRIACAnswer, triacBranches);
constexpr Symbol diacThyristor = thyristor("This draws a DIAC THYRISTOR", &CanvasState::DIACAnswer, diacBranches);
constexpr Symbol ujtThyristor = thyristor("This draws a UJT THYRISTOR", &CanvasState::UJTAnswer, ujtBranches);

} // namespace schemlet
