#include "canvas/jumper_ground.h"

#include "canvas/notice.h"

#include <algorithm>

namespace schemlet {

namespace {

struct Hop {
    int heading;
    int halfX, halfY; // half the pen's move over the crossing, twips
    float start, end; // radians, counter-clockwise
};

// About 160 degrees each. A vertical hop starts ten twips beyond the pen and ends ten twips short of the wire.
constexpr Hop hops[] = {{heading::right, 100, 0, 3.5F, 0.0F},
                        {heading::left, -100, 0, 3.5F, 0.0F},
                        {heading::up, 0, -110, 5.0F, 1.5F},
                        {heading::down, 0, 110, 5.0F, 1.5F}};

constexpr float hopRadius = 100;

struct Bar {
    int halfWidth;
    int below; // the pen, twips
};

constexpr Bar groundBars[] = {{200, 0}, {125, 55}, {75, 100}, {25, 150}};

} // namespace

bool drawJumper(Surface& surface, Pen& pen)
{
    const auto* const hop = std::ranges::find(hops, pen.heading, &Hop::heading);
    if (hop == std::end(hops)) {
        return false;
    }
    pen.x += hop->halfX;
    pen.y += hop->halfY;
    surface.arc(pointBeside(pen), hopRadius, hop->start, hop->end);
    pen.x += hop->halfX;
    pen.y += hop->halfY;
    return true;
}

void drawGround(Surface& surface, const Pen& pen)
{
    for (const Bar& bar : groundBars) {
        surface.line(pointBeside(pen, -bar.halfWidth, bar.below), pointBeside(pen, bar.halfWidth, bar.below));
    }
}

void jumper(Form1& form)
{
    if (!drawJumper(form.surface, form)) {
        notify(form, noDirection);
    }
}

void ground(Form1& form)
{
    drawGround(form.surface, form);
}

} // namespace schemlet
