#include "platform/ink/ink.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace schemlet {

namespace ink {

namespace {

/// A part of a row of pixels. It is empty unless from < to.
struct Interval {
    double from;
    double to;
};

/// The first pixel whose centre is at or after a place, clamped to 0 and limit.
int firstPixel(double place, int limit)
{
    return static_cast<int>(std::clamp(std::ceil(place - 0.5), 0.0, static_cast<double>(limit)));
}

Area clipped(const Image& image, double left, double top, double right, double bottom)
{
    const Area area{firstPixel(left, image.width), firstPixel(top, image.height), firstPixel(right, image.width),
                    firstPixel(bottom, image.height)};
    return area.left < area.right && area.top < area.bottom ? area : Area{};
}

template <typename Wanted> void inkRow(const Image& image, const Pen& pen, int y, Interval row, Wanted wanted)
{
    std::uint32_t* const pixels = image.pixels + static_cast<std::ptrdiff_t>(y) * image.stride;
    const int end = firstPixel(row.to, image.width);
    for (int x = firstPixel(row.from, image.width); x < end; ++x) {
        if (wanted(x)) {
            pixels[x] = pen.pixel;
        }
    }
}

constexpr auto everyPixel = [](auto... /*place*/) { return true; };

/// The nearest centre from which a shape of this extent covers whole pixels, as many to each side.
double fitted(double place, double extent)
{
    const bool odd = std::fmod(std::round(extent), 2.0) != 0;
    return odd ? std::floor(place) + 0.5 : std::floor(place + 0.5);
}

/// A place in the image's own pixels.
Place fitted(const Image& image, Place place, double extent)
{
    const auto fit = [&](double along) { return fitted(fitted(along, extent) * image.scale, extent * image.scale); };
    return {fit(place.x), fit(place.y)};
}

Pen scaled(const Image& image, const Pen& pen)
{
    return {pen.pixel, pen.width * image.scale};
}

/// The chord of a disc at a distance from its centre; empty outside the disc.
Interval chord(double centre, double radius, double distance)
{
    const double square = radius * radius - distance * distance;
    const double half = square > 0 ? std::sqrt(square) : 0;
    return {centre - half, centre + half};
}

/// Extends a row of a convex shape to another part of that shape.
void extend(Interval& row, Interval by)
{
    if (by.from < by.to) {
        row = row.from < row.to ? Interval{std::min(row.from, by.from), std::max(row.to, by.to)} : by;
    }
}

using Corners = std::array<Place, 4>;

/// The corners of the rectangle between a stroke's two round ends, in order.
Corners corners(Place from, Place to, double halfWidth)
{
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length == 0) {
        return {from, from, from, from};
    }
    const double acrossX = -(to.y - from.y) / length * halfWidth;
    const double acrossY = (to.x - from.x) / length * halfWidth;
    return {{{from.x + acrossX, from.y + acrossY},
             {to.x + acrossX, to.y + acrossY},
             {to.x - acrossX, to.y - acrossY},
             {from.x - acrossX, from.y - acrossY}}};
}

/// The part of the row at height y that lies in a rectangle.
Interval rectangleRow(const Corners& rectangle, double y)
{
    Interval row{0, 0};
    bool crossed = false;
    for (std::size_t i = 0; i < rectangle.size(); ++i) {
        const Place a = rectangle[i];
        const Place b = rectangle[(i + 1) % rectangle.size()];
        if ((a.y <= y) == (b.y <= y)) {
            continue;
        }
        const double x = a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x);
        row = crossed ? Interval{std::min(row.from, x), std::max(row.to, x)} : Interval{x, x};
        crossed = true;
    }
    return row;
}

/// Inks the pixels of a ring that are wanted.
template <typename Wanted> Area ring(const Image& image, const Pen& pen, Place centre, double radius, Wanted wanted)
{
    const double outer = radius + pen.width / 2;
    const double inner = std::max(0.0, radius - pen.width / 2);
    const Area area = clipped(image, centre.x - outer, centre.y - outer, centre.x + outer, centre.y + outer);
    for (int y = area.top; y < area.bottom; ++y) {
        const double distance = y + 0.5 - centre.y;
        const Interval whole = chord(centre.x, outer, distance);
        const Interval hole = chord(centre.x, inner, distance);
        const auto wantedHere = [&](int x) { return wanted(x, y); };
        inkRow(image, pen, y, {whole.from, hole.from}, wantedHere);
        inkRow(image, pen, y, {hole.to, whole.to}, wantedHere);
    }
    return area;
}

Area disc(const Image& image, const Pen& pen, Place centre)
{
    return ring(image, pen, centre, 0, everyPixel);
}

/// The angle counter-clockwise from start, at least 0 and less than a full turn.
double angleFrom(double start, double angle)
{
    const double turn = 2 * std::numbers::pi;
    const double difference = std::fmod(angle - start, turn);
    return difference < 0 ? difference + turn : difference;
}

} // namespace

Area line(const Image& image, const Pen& pen, Place from, Place to)
{
    from = fitted(image, from, pen.width);
    to = fitted(image, to, pen.width);
    const double half = pen.width * image.scale / 2;
    const Area area = clipped(image, std::min(from.x, to.x) - half, std::min(from.y, to.y) - half,
                              std::max(from.x, to.x) + half, std::max(from.y, to.y) + half);
    const Corners rectangle = corners(from, to, half);
    for (int y = area.top; y < area.bottom; ++y) {
        const double middle = y + 0.5;
        Interval row = rectangleRow(rectangle, middle);
        extend(row, chord(from.x, half, middle - from.y));
        extend(row, chord(to.x, half, middle - to.y));
        inkRow(image, pen, y, row, everyPixel);
    }
    return area;
}

Area circle(const Image& image, const Pen& pen, Place centre, double radius)
{
    return ring(image, scaled(image, pen), fitted(image, centre, 2 * radius + pen.width), radius * image.scale,
                everyPixel);
}

Area arc(const Image& image, const Pen& pen, Place centre, double radius, double start, double end)
{
    centre = fitted(image, centre, 2 * radius + pen.width);
    radius *= image.scale;
    const Pen wide = scaled(image, pen);
    const double sweep = angleFrom(start, end);
    const Area area = ring(image, wide, centre, radius, [&](int x, int y) {
        return angleFrom(start, std::atan2(centre.y - (y + 0.5), x + 0.5 - centre.x)) <= sweep;
    });
    for (const double angle : {start, end}) {
        disc(image, wide, {centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)});
    }
    return area;
}

} // namespace ink

} // namespace schemlet
