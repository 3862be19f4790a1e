#include "symbols/transformers.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// Each winding has five turns, one radius apart. The primary is drawn downwards, the secondary upwards.
constexpr auto primaryLead = strokes(line(0, 0, 400, 0), line(400, 0, 400, 400));
constexpr auto primary = strokes(circle(400, 550, 150), circle(400, 700, 150), circle(400, 850, 150),
                                 circle(400, 1000, 150), circle(400, 1150, 150));
constexpr auto lowerLeads = strokes(line(400, 1300, 400, 1900), line(400, 1900, -100, 1900),
                                    line(2000, 1900, 1000, 1900), line(1000, 1900, 1000, 1300));
constexpr auto secondary = strokes(circle(1000, 1150, 150), circle(1000, 1000, 150), circle(1000, 850, 150),
                                   circle(1000, 700, 150), circle(1000, 550, 150));
constexpr auto secondaryLeadAndCore =
    strokes(line(1000, 400, 1000, 0), line(1000, 0, 2000, 0), line(750, 300, 750, 1400), line(650, 300, 650, 1400));
constexpr auto singlePhaseRows = join(primaryLead, primary, lowerLeads, secondary, secondaryLeadAndCore);
constexpr auto centerTappedRows = join(singlePhaseRows, strokes(line(1150, 800, 2000, 800)));

constexpr Branch singlePhaseBranches[] = {{.strokes = singlePhaseRows}};
constexpr Branch centerTappedBranches[] = {{.strokes = centerTappedRows}};

} // namespace

constexpr Symbol singlePhaseTransformer{.title = "This draws a SINGLE PHASE TRANSFORMER",
                                        .confirm = transformersConfirm,
                                        .answer = &CanvasState::singlephaseAnswer,
                                        .color = &CanvasState::transformerColor,
                                        .branches = singlePhaseBranches};
constexpr Symbol centerTappedTransformer{.title = "This draws a CENTER TAPPED TRANSFORMER",
                                         .confirm = transformersConfirm,
                                         .answer = &CanvasState::centertappedAnswer,
                                         .color = &CanvasState::transformerColor,
                                         .branches = centerTappedBranches};

} // namespace schemlet
