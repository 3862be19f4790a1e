#include "canvas/keyboard.h"

#include "canvas/jumper_ground.h"
#include "canvas/pen_marker.h"
#include "platform/event.h"

#include <algorithm>
#include <cmath>

namespace schemlet {

namespace {

struct ArrowKey {
    int code;
    int heading;
    int dx, dy;       // the direction
    int probe;        // the distance from the pen at which a crossing wire is looked for, twips
    int markerOffset; // of the marker's left edge from the pen, twips
};

// The vertical probe is shorter, but still does not find the wire that a straight run has just drawn. Beside a vertical
// wire, the marker stands aside so that it does not hide it.
constexpr ArrowKey arrowKeys[] = {{key::right, heading::right, 1, 0, 110, 0},
                                  {key::left, heading::left, -1, 0, 110, 0},
                                  {key::up, heading::up, 0, -1, 100, -100},
                                  {key::down, heading::down, 0, 1, 100, 100}};

constexpr int dotSpacing = 10;
constexpr float dotRadius = 10;

bool wireAhead(Form1& form, const ArrowKey& arrow)
{
    const auto found = form.surface.point(pointBeside(form, arrow.dx * arrow.probe, arrow.dy * arrow.probe));
    if (found) {
        form.probeColor = *found;
    }
    return found == form.wireColor;
}

void arrowKey(Form1& form, const ArrowKey& arrow)
{
    form.heading = arrow.heading;
    form.penMoved = 1;
    if (form.eraseMode != 0) {
        return;
    }
    form.surface.setForeColor(form.wireColor);
    if (wireAhead(form, arrow) && form.autoJumper == 1) {
        form.jumperAnswer =
            form.dialogs.messageBox(" Do you want to draw a JUMPER ?", Box::walkQuestion, "POINT (or) LINE AHEAD...");
        if (form.jumperAnswer == answer::yes) {
            jumper(form);
        }
    }
    layStep(form.surface, form);
    placeMarker(form, form.x + arrow.markerOffset);
}

} // namespace

void layStep(Surface& surface, Pen& pen)
{
    const auto* const arrow = std::ranges::find(arrowKeys, pen.heading, &ArrowKey::heading);
    if (arrow == std::end(arrowKeys)) {
        return;
    }
    for (int along = 0; along < stepLength; along += dotSpacing) {
        surface.circle(pointBeside(pen, arrow->dx * along, arrow->dy * along), dotRadius);
    }
    pen.x += arrow->dx * stepLength;
    pen.y += arrow->dy * stepLength;
}

bool hopped(const Pen& from, const Pen& to)
{
    return std::hypot(to.x - from.x, to.y - from.y) > stepLength;
}

void keyDown(Form1& form, int code)
{
    form.savedMark = 0;
    const auto* const arrow = std::ranges::find(arrowKeys, code, &ArrowKey::code);
    if (arrow != std::end(arrowKeys)) {
        arrowKey(form, *arrow);
    }
}

void eraser1(Form1& form)
{
    constexpr int normalWidth = 2;
    constexpr int eraserWidth = 10;
    form.surface.setDrawWidth(form.surface.drawWidth() == eraserWidth ? normalWidth : eraserWidth);
    form.eraseMode = form.eraseMode == 0 ? 1 : 0;
    form.window.flipVisible(control::Label27);
}

void toggleAutoJumper(Form1& form)
{
    form.autoJumper = form.autoJumper == 1 ? 0 : 1;
}

void jj(Form1& form)
{
    form.window.flipChecked(item::jj);
    toggleAutoJumper(form);
}

} // namespace schemlet
