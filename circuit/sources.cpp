#include "circuit/sources.h"

#include "canvas/notice.h"
#include "circuit/numbers.h"
#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// The positive battery starts with its long plate, the negative one with its short plate. Their uneven lengths are
// intended.
constexpr auto positiveRight =
    strokes(line(0, 0, 0, -150), dot(-70, -400), value(), line(0, -150, 0, 200), line(100, 100, 100, -100));
constexpr auto positiveLeft =
    strokes(line(0, 0, 0, -150), line(0, -150, 0, 200), dot(-200, 250), value(), line(-100, 100, -100, -100));
constexpr auto positiveUp = strokes(line(0, 0, 150, 0), line(200, 0, -200, 0), line(0, -100, 100, -100),
                                    line(100, -100, -100, -100), dot(-500, -100), value());
constexpr auto positiveDown = strokes(line(0, 0, 150, 0), line(200, 0, -200, 0), line(0, 100, 100, 100),
                                      line(100, 100, -100, 100), dot(200, 0), value(), dot(-400, 100));
constexpr Branch positiveBatteryBranches[] = {{.heading = heading::right, .strokes = positiveRight, .after = {120, 0}},
                                              {.heading = heading::left, .strokes = positiveLeft, .after = {-120, 0}},
                                              {.heading = heading::up, .strokes = positiveUp, .after = {0, -120}},
                                              {.heading = heading::down, .strokes = positiveDown, .after = {0, 120}}};

constexpr auto negativeRight =
    strokes(line(0, 0, 0, -100), line(0, -100, 0, 100), line(100, 150, 100, -200), dot(-100, -450), value());
constexpr auto negativeLeft =
    strokes(line(0, 0, 0, -100), line(0, -100, 0, 100), dot(-150, 200), value(), line(-100, 150, -100, -200));
constexpr auto negativeUp = strokes(line(0, 0, -100, 0), line(-110, 0, 130, 0), line(100, -100, -200, -100),
                                    dot(-500, -120), value(), line(-200, -100, 200, -100));
constexpr auto negativeDown = strokes(line(0, 0, -100, 0), line(-110, 0, 130, 0), line(100, 100, -200, 100),
                                      dot(200, -70), value(), line(-200, 100, 200, 100));
constexpr Branch negativeBatteryBranches[] = {{.heading = heading::right, .strokes = negativeRight, .after = {120, 0}},
                                              {.heading = heading::left, .strokes = negativeLeft, .after = {-120, 0}},
                                              {.heading = heading::up, .strokes = negativeUp, .after = {0, -120}},
                                              {.heading = heading::down, .strokes = negativeDown, .after = {0, 120}}};

// A circle around the moved pen. Its text is the same for every heading.
constexpr auto supplyRows = strokes(circle(0, 0, 200), dot(-200, -50), value(), dot(50, -50));
constexpr auto voltageRows = join(supplyRows, strokes(sameLine("V")));
constexpr auto currentRows = join(supplyRows, strokes(sameLine("A")));

using SupplyBranches = std::array<Branch, 4>;

constexpr SupplyBranches supplyBranches(std::span<const Stroke> rows)
{
    constexpr auto moved = Origin::movedPen;
    return {Branch{.heading = heading::right, .before = {200, 0}, .origin = moved, .strokes = rows, .after = {210, 0}},
            Branch{.heading = heading::left, .before = {-200, 0}, .origin = moved, .strokes = rows, .after = {-210, 0}},
            Branch{.heading = heading::up, .before = {0, -200}, .origin = moved, .strokes = rows, .after = {0, -210}},
            Branch{.heading = heading::down, .before = {0, 200}, .origin = moved, .strokes = rows, .after = {0, 210}}};
}

constexpr SupplyBranches voltageSupplyBranches = supplyBranches(voltageRows);
constexpr SupplyBranches currentSupplyBranches = supplyBranches(currentRows);

} // namespace

constexpr Source positiveBattery{&CanvasState::batteryPositive, false, positiveBatteryBranches};
constexpr Source negativeBattery{&CanvasState::batteryNegative, false, negativeBatteryBranches};
constexpr Source voltageSupply{&CanvasState::supplyVoltage, true, voltageSupplyBranches};
constexpr Source currentSupply{&CanvasState::supplyCurrent, true, currentSupplyBranches};

void place(Form1& form, const Source& source, double value)
{
    double& kept = form.*source.value;
    kept = source.sums ? checked(kept + value) : value;
    form.surface.setForeColor(black);
    if (!draw(form.surface, form, source.branches, toText(value))) {
        notify(form, source.sums ? countedOnly : noDirection);
    }
}

} // namespace schemlet
