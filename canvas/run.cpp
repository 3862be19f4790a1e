#include "canvas/run.h"

#include "canvas/wire.h"

#include <algorithm>
#include <cmath>

namespace schemlet {

namespace {

constexpr double tenSteps = 10 * stepLength;

/// The pixels of the canvas from the pen on, along a direction. Number 0 is the pen's own.
class Track {
public:
    Track(const Form1& form, const Direction& way) : m_form(form), m_way(way) {}

    [[nodiscard]] bool isVisible(int pixel) const { return m_form.window.isOnCanvas(at(pixel)); }
    [[nodiscard]] bool isInk(int pixel) const
    {
        return m_form.surface.point(at(pixel)).value_or(m_form.paperColor) != m_form.paperColor;
    }
    /// The distance from the pen to the middle of a pixel, in twips. A half number is the edge between two pixels.
    [[nodiscard]] double distance(double pixel) const;
    /// The distance to where a wire meets the ink that begins at this pixel.
    [[nodiscard]] double distanceToInk(int first) const;
    /// The distance to the ink at the place where lookAhead() found it.
    [[nodiscard]] double distanceToProbed() const;

private:
    [[nodiscard]] Point at(int pixel) const
    {
        const double along = distance(pixel);
        return pointBeside(m_form, m_way.dx * along, m_way.dy * along);
    }

    const Form1& m_form;
    const Direction& m_way;
};

double Track::distance(double pixel) const
{
    const double pen = m_way.dx != 0 ? m_form.x : m_form.y;
    const double middle = (std::floor(pen / twipsPerPixel) + 0.5) * twipsPerPixel;
    return (middle - pen) * (m_way.dx + m_way.dy) + pixel * twipsPerPixel;
}

double Track::distanceToInk(int first) const
{
    constexpr int thickest = 4; // pixels of a wire or a symbol's stroke; anything else is an area
    int last = first;
    while (last - first < thickest && isInk(last + 1)) {
        ++last;
    }
    return distance(last - first < thickest ? (first + last) / 2.0 : first);
}

double Track::distanceToProbed() const
{
    int pixel = static_cast<int>(std::lround((m_way.probe - distance(0)) / twipsPerPixel));
    while (pixel > 0 && isInk(pixel - 1)) {
        --pixel;
    }
    return std::max(0.0, distanceToInk(pixel));
}

struct Reach {
    double length; ///< twips
    bool meets;    ///< ends at something, so no gap may be left
};

/// The distance to the column or the row where the walk began; negative behind the pen.
double distanceToStart(const Form1& form, const Direction& way)
{
    return (form.walkX - form.x) * way.dx + (form.walkY - form.y) * way.dy;
}

Reach reachOf(const Form1& form, const Direction& way)
{
    constexpr int ownInk = 5; // pixels; nearer ink belongs to what the pen has just drawn
    const Track track(form, way);
    if (!track.isVisible(0)) {
        return {tenSteps, false};
    }
    int pixel = 1;
    while (track.isVisible(pixel) && (pixel <= ownInk || !track.isInk(pixel) || track.isInk(pixel - 1))) {
        ++pixel;
    }
    const bool isInkAhead = track.isVisible(pixel);
    const double end = isInkAhead ? track.distanceToInk(pixel) : std::max(0.0, track.distance(pixel - 1));
    const double start = distanceToStart(form, way);
    // If the start is less than a pixel away, the pen is there already. A run to the start ends in its very column or
    // row, even if the wire there begins up to a pixel earlier.
    if (start >= twipsPerPixel && start < end + twipsPerPixel) {
        return {start, true};
    }
    return isInkAhead || end < tenSteps ? Reach{end, true} : Reach{tenSteps, false};
}

} // namespace

void run(Form1& form, int heading)
{
    const Direction& way = *directionOfHeading(heading);
    form.savedMark = 0;
    turnPen(form, way);
    if (form.eraseMode != 0) {
        return;
    }
    form.surface.setForeColor(form.wireColor);
    Reach reach = reachOf(form, way);
    bool asks = true;
    while (reach.length > 0) {
        const Crossing crossing = asks ? lookAhead(form, way) : Crossing::none;
        if (crossing == Crossing::hopped) {
            reach = reachOf(form, way);
            continue;
        }
        if (crossing == Crossing::refused) {
            asks = false;
            reach = {std::min(reach.length, Track(form, way).distanceToProbed()), true};
        }
        const double piece = std::min<double>(reach.length, stepLength);
        layWire(form.surface, form, way, piece);
        reach.length -= piece;
    }
    if (reach.meets) {
        joinWire(form.surface, form);
    }
    placeMarkerBeside(form, way);
}

void beginWalk(Form1& form)
{
    form.walkX = form.x;
    form.walkY = form.y;
}

} // namespace schemlet
