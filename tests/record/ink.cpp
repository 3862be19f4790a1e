#include "platform/ink/finer_ink.h"
#include "tests/record/record.h"
#include "tests/support/paper.h"
#include "tests/support/stand_ins.h"

#include <array>

namespace schemlet {

namespace {

struct Shape {
    const char* title = "";
    ink::Place from{}, to{}; ///< or only the centre
    double radius = 0;       ///< 0: a line
    double start = 0, end = 0;
};

constexpr Shape shapes[] = {
    {"dot", {6.5, 5.4}, {6.5, 5.4}},
    {"level line", {-3, 7.2}, {9.7, 7.2}},
    {"steep line", {12.2, 20}, {6, 4.7}},
    {"flat line", {4, 11}, {30, 5.5}},
    // The dots of a wire are 2/3 of a pixel apart, so these three repeat. Together, they are solid and even.
    {"wire's dot", {7, 6}, {}, 10 / 15.0},
    {"wire's next dot", {7 + 2 / 3.0, 6 + 1 / 3.0}, {}, 10 / 15.0},
    {"wire's third dot", {8 + 1 / 3.0, 6 + 2 / 3.0}, {}, 10 / 15.0},
    {"circle", {8.1, 6.7}, {}, 6.2},
    {"circle over the edge", {15, 1}, {}, 7},
    {"level hop", {8, 8}, {}, 100 / 15.0, 3.5, 0},
    {"upright hop", {8, 8}, {}, 100 / 15.0, 5, 1.5},
    {"line from far to far", {-3e9, 12}, {3e9, 5}},
    {"circle far away", {3e9, 12}, {}, 7.3},
    {"arc far away", {-3e9, 12}, {}, 7.3, 5, 1.5},
    {"arc over the corner", {-1.7, 12}, {}, 7.3, 5, 1.5},
    {"bowl", {9.4, 4.6}, {}, 6.2, 3.3, 6},
    {"arc of more than a turn", {8.6, 8.4}, {}, 4.7, -2, 9},
};

struct Width {
    double pixels = 0;
    std::array<double, 2> scales{};
};

constexpr Width widths[] = {{2, {1.5, 2.25}}, {5, {1.25, 2}}, {10, {1.5, 2.25}}};

ink::Area draw(Paper& paper, const ink::Pen& pen, const Shape& shape, double aside = 0)
{
    const ink::Place from{shape.from.x + aside, shape.from.y + aside};
    if (shape.radius == 0) {
        return ink::line(paper.image(), pen, from, {shape.to.x + aside, shape.to.y + aside});
    }
    return shape.start == shape.end ? ink::circle(paper.image(), pen, from, shape.radius)
                                    : ink::arc(paper.image(), pen, from, shape.radius, shape.start, shape.end);
}

/// Draws a shape over other ink on a screen with finer pixels, which is a little larger than the canvas. Then draws it
/// again a little aside, in another colour.
std::string shownFiner(const Shape& shape, double penWidth, double scale)
{
    Paper canvas{18, 15};
    Paper finer{static_cast<int>(19 * scale), static_cast<int>(15 * scale) + 1, scale};
    ink::line(canvas.image(), {2, 5}, {6, 0}, {13, 15});
    for (const ink::Area& part : {ink::Area{7, 6, 18, 15}, {0, 6, 7, 15}, {7, 0, 18, 6}, {0, 0, 7, 6}}) {
        ink::enlarge(canvas.image(), finer.image(), part);
    }
    std::string text = "with " + written(scale) + " times the pixels\n";
    for (const auto& [pixel, aside] : {std::pair{1U, 0.0}, {3U, 0.2}}) {
        for (Paper* const paper : {&canvas, &finer}) {
            draw(*paper, {pixel, penWidth}, shape, aside);
        }
        ink::reconcile(canvas.image(), finer.image(), {0, 0, 18, 15});
        text += finer.text();
    }
    return text;
}

} // namespace

void recordInk(Record& record)
{
    for (const Shape& shape : shapes) {
        for (const auto& [width, scales] : widths) {
            Paper paper{18, 15};
            const ink::Area area = draw(paper, {1, width}, shape);
            record.push_back({std::string("Ink, ") + shape.title + ", " + written(width) + " pixels wide",
                              "changes " + std::to_string(area.left) + " " + std::to_string(area.top) + " to " +
                                  std::to_string(area.right) + " " + std::to_string(area.bottom) + "\n" + paper.text() +
                                  shownFiner(shape, width, scales[0]) + shownFiner(shape, width, scales[1])});
        }
    }
}

} // namespace schemlet
