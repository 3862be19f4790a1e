#include "symbols/machines.h"

#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// Offsets from the machine's centre. The terminal strokes all have different lengths.
constexpr auto bodyRows =
    strokes(circle(0, 0, 300), line(-135, 400, 170, 400), line(170, 400, 170, 230), line(-135, 400, -135, 255),
            line(125, -400, -150, -400), line(-150, -400, -150, -240), line(135, -400, 135, -245));
constexpr auto dcMark = strokes(line(-50, -70, 50, -70));

constexpr auto acMotorRows = join(bodyRows, strokes(label(-50, -70, "M")));
constexpr auto dcMotorRows = join(acMotorRows, dcMark);
constexpr auto acGeneratorRows = join(bodyRows, strokes(label(-50, -70, "G")));
constexpr auto dcGeneratorRows = join(acGeneratorRows, dcMark);
constexpr auto armatureRows = join(bodyRows, strokes(label(300, -400, "A"), label(300, 400, "AA")));

constexpr Branch machine(std::span<const Stroke> rows)
{
    return {.before = {0, 410}, .origin = Origin::movedPen, .strokes = rows, .after = {0, 410}};
}

constexpr Branch acMotorBranches[] = {machine(acMotorRows)};
constexpr Branch dcMotorBranches[] = {machine(dcMotorRows)};
constexpr Branch acGeneratorBranches[] = {machine(acGeneratorRows)};
constexpr Branch dcGeneratorBranches[] = {machine(dcGeneratorRows)};
constexpr Branch armatureBranches[] = {machine(armatureRows)};

// Five turns, one radius apart, between two leads. The labels are above its ends.
constexpr auto fieldRows =
    strokes(line(0, 0, 300, 0), circle(450, 0, 150), circle(600, 0, 150), circle(750, 0, 150), circle(900, 0, 150),
            circle(1050, 0, 150), label(1300, -300, "FF"), label(150, -300, "F"), line(1200, 0, 1500, 0));
constexpr Branch fieldBranches[] = {{.strokes = fieldRows, .after = {1500, 0}}};

} // namespace

constexpr Symbol acMotor{.title = "This draws an AC MOTOR",
                         .confirm = motorsConfirm,
                         .answer = &CanvasState::acmotorAnswer,
                         .color = &CanvasState::motorColor,
                         .branches = acMotorBranches};
constexpr Symbol dcMotor{.title = "This draws a DC MOTOR",
                         .confirm = motorsConfirm,
                         .answer = &CanvasState::dcmotorAnswer,
                         .color = &CanvasState::motorColor,
                         .branches = dcMotorBranches};
constexpr Symbol acGenerator{.title = "This draws an AC GENERATOR",
                             .confirm = generatorsConfirm,
                             .answer = &CanvasState::acgeneratorAnswer,
                             .color = &CanvasState::generatorColor,
                             .branches = acGeneratorBranches};
constexpr Symbol dcGenerator{.title = "This draws a DC GENERATOR",
                             .confirm = generatorsConfirm,
                             .answer = &CanvasState::dcgeneratorAnswer,
                             .color = &CanvasState::generatorColor,
                             .branches = dcGeneratorBranches};
constexpr Symbol armatureWinding{.title = "This draws an ARMATURE",
                                 .confirm = armatureConfirm,
                                 .answer = &CanvasState::armatureAnswer,
                                 .color = &CanvasState::armatureColor,
                                 .branches = armatureBranches};
constexpr Symbol fieldWinding{.title = "This draws a FIELD",
                              .confirm = fieldConfirm,
                              .answer = &CanvasState::fieldAnswer,
                              .color = &CanvasState::fieldColor,
                              .branches = fieldBranches};

} // namespace schemlet
