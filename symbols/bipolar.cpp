#include "symbols/bipolar.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// The ground bars are not centred below their lead.
constexpr auto emitterRows =
    strokes(circle(150, -25, 300), line(0, 180, 0, -230), label(-350, -200, " b"), label(80, -330, " c"),
            line(0, -80, 420, -200), line(0, 100, 300, 200), label(270, 0, "e"), line(250, 170, 200, 100),
            line(250, 170, 150, 220), line(300, 200, 300, 1100), line(400, 1100, 150, 1100), line(370, 1150, 200, 1150),
            line(330, 1200, 250, 1200), line(300, 1250, 330, 1250));
constexpr auto emitter1Arrow = strokes(line(200, 170, 250, 100), line(200, 170, 250, 250));
constexpr auto emitter1Rows = join(rows<1, 7>(emitterRows), emitter1Arrow, rows<10, 14>(emitterRows));

constexpr auto collectorRows =
    strokes(circle(150, -25, 300), line(0, 180, 0, -230), label(-350, -200, " b"), label(420, -400, " e"),
            line(150, -170, 300, -170), line(300, -170, 250, -50), line(0, -80, 420, -200), line(0, 100, 300, 200),
            label(270, 0, "c"), line(300, 200, 300, 1100), line(400, 1100, 150, 1100), line(370, 1150, 200, 1150),
            line(330, 1200, 250, 1200), line(300, 1250, 330, 1250));

constexpr auto baseRows =
    strokes(circle(350, 75, 350), label(20, -130, " e"), line(130, 100, 130, 180), line(130, 100, 250, 100),
            line(0, 0, 340, 250, " b"), line(340, 250, 700, 0), label(450, -130, " c"), line(120, 250, 580, 250),
            dot(340, 250), line(340, 250, 340, 1300), line(200, 1300, 500, 1300), line(250, 1350, 450, 1350),
            line(300, 1400, 400, 1400), line(320, 1450, 380, 1450));
constexpr auto base1Arrow = strokes(line(570, 100, 570, 180), line(570, 100, 450, 100));
constexpr auto base1Rows = join(rows<1, 2>(baseRows), rows<5, 7>(baseRows), base1Arrow, rows<8, 14>(baseRows));

constexpr Offset upperBefore{150, -100};
constexpr Offset upperAfter{280, -100};
constexpr Branch emitterBranches[] = {{.before = upperBefore, .strokes = emitterRows, .after = upperAfter}};
constexpr Branch emitter1Branches[] = {{.before = upperBefore, .strokes = emitter1Rows, .after = upperAfter}};
constexpr Branch collectorBranches[] = {{.before = upperBefore, .strokes = collectorRows, .after = upperAfter}};
constexpr Branch baseBranches[] = {{.before = {350, 0}, .strokes = baseRows, .after = {350, 0}}};
constexpr Branch base1Branches[] = {{.before = {350, 0}, .strokes = base1Rows, .after = {350, 0}}};

constexpr Symbol transistor(std::string_view title, Confirm confirm, int CanvasState::*answer,
                            std::span<const Branch> branches)
{
    return {.title = title,
            .confirm = confirm,
            .answer = answer,
            .color = &CanvasState::transformerColor,
            .branches = branches,
            .marker = Marker::leftFollows};
}

} // namespace

constexpr Symbol npnEmitter =
    transistor("This draws an NPN COMMON EMITTER", npnConfirm, &CanvasState::emitterAnswer, emitterBranches);
constexpr Symbol npnBase =
    transistor("This draws an NPN COMMON BASE", npnConfirm, &CanvasState::baseAnswer, baseBranches);
constexpr Symbol npnCollector =
    transistor("This draws an NPN COMMON COLLECTOR", npnConfirm, &CanvasState::collectorAnswer, collectorBranches);
constexpr Symbol pnpEmitter =
    transistor("This draws an PNP COMMON EMITTER", pnpConfirm, &CanvasState::emitter1Answer, emitter1Branches);
constexpr Symbol pnpBase =
    transistor("This draws an PNP COMMON BASE", pnpConfirm, &CanvasState::base1Answer, base1Branches);
constexpr Symbol pnpCollector =
    transistor("This draws an PNP COMMON COLLECTOR", pnpConfirm, &CanvasState::collector1Answer, collectorBranches);

} // namespace schemlet
