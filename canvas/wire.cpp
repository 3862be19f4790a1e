#include "canvas/wire.h"

#include "canvas/jumper_ground.h"
#include "canvas/pen_marker.h"
#include "platform/event.h"

#include <algorithm>
#include <cmath>

namespace schemlet {

namespace {

// The vertical probe is shorter, but still does not find the wire that a straight run has just drawn. Beside a vertical
// wire, the marker stands aside so that it does not hide it.
constexpr Direction directions[] = {{key::right, heading::right, 1, 0, 110, 0},
                                    {key::left, heading::left, -1, 0, 110, 0},
                                    {key::up, heading::up, 0, -1, 100, -100},
                                    {key::down, heading::down, 0, 1, 100, 100}};

constexpr int dotSpacing = 10;
constexpr float dotRadius = 10;

const Direction* find(int code, int Direction::*field)
{
    const auto* const direction = std::ranges::find(directions, code, field);
    return direction != std::end(directions) ? direction : nullptr;
}

bool isWireAhead(Form1& form, const Direction& way)
{
    const auto found = form.surface.point(pointBeside(form, way.dx * way.probe, way.dy * way.probe));
    if (found) {
        form.probeColor = *found;
    }
    return found == form.wireColor;
}

} // namespace

const Direction* directionOfKey(int code)
{
    return find(code, &Direction::key);
}

const Direction* directionOfHeading(int heading)
{
    return find(heading, &Direction::heading);
}

void layWire(Surface& surface, Pen& pen, const Direction& way, double length)
{
    for (int along = 0; along < length; along += dotSpacing) {
        surface.circle(pointBeside(pen, way.dx * along, way.dy * along), dotRadius);
    }
    pen.x += way.dx * length;
    pen.y += way.dy * length;
}

void layStep(Surface& surface, Pen& pen)
{
    if (const Direction* const way = directionOfHeading(pen.heading); way != nullptr) {
        layWire(surface, pen, *way, stepLength);
    }
}

void joinWire(Surface& surface, const Pen& pen)
{
    surface.circle(pointBeside(pen), dotRadius);
}

bool hopped(const Pen& from, const Pen& to)
{
    return std::hypot(to.x - from.x, to.y - from.y) > stepLength;
}

void turnPen(Form1& form, const Direction& way)
{
    form.heading = way.heading;
    form.penMoved = 1;
}

Crossing lookAhead(Form1& form, const Direction& way)
{
    if (!isWireAhead(form, way) || form.autoJumper == 0) {
        return Crossing::none;
    }
    form.jumperAnswer =
        form.dialogs.messageBox(" Do you want to draw a JUMPER ?", Box::walkQuestion, "POINT (or) LINE AHEAD...");
    if (form.jumperAnswer != answer::yes) {
        return Crossing::refused;
    }
    jumper(form);
    return Crossing::hopped;
}

void placeMarkerBeside(Form1& form, const Direction& way)
{
    placeMarker(form, form.x + way.markerOffset);
}

} // namespace schemlet
