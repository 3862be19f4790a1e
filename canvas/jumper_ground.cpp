#include "canvas/jumper_ground.h"

#include "canvas/notice.h"

#include <algorithm>

namespace {

struct Hop {
    int heading;
    int halfX, halfY; // half the pen's way over the crossing, twips
    float start, end; // radians, counter-clockwise
};

// About 160 degrees each. The vertical hops take ten twips more than the radius, so they end just short of the wire.
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

void jumper(Form1& form)
{
    const auto* const hop = std::ranges::find(hops, form.heading, &Hop::heading);
    if (hop == std::end(hops)) {
        return notify(form, noDirection);
    }
    form.x += hop->halfX;
    form.y += hop->halfY;
    form.surface.arc(static_cast<float>(form.x), static_cast<float>(form.y), hopRadius, hop->start, hop->end);
    form.x += hop->halfX;
    form.y += hop->halfY;
}

void ground(Form1& form)
{
    for (const Bar& bar : groundBars) {
        const auto y = static_cast<float>(form.y + bar.below);
        form.surface.line(static_cast<float>(form.x - bar.halfWidth), y, static_cast<float>(form.x + bar.halfWidth), y);
    }
}
