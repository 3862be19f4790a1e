#pragma once

#include <cstdint>

namespace schemlet {

/// Strokes of a round pen, without antialiasing. A stroke inks each pixel whose centre lies within half the pen's width
/// of the path. So a line has round ends, a line of zero length is a dot, and a circle smaller than the pen is a disc.
/// Paths are first fitted to the pixel grid, so that every shape looks the same everywhere, wires and bars have the
/// same thickness throughout, and circles are symmetric.
///
/// Places are in pixels of the unscaled grid: pixel (0, 0) extends from 0 to 1. Any finite place is accepted. Clipping
/// to the image costs nothing. An image with a scale has that many pixels along each pixel of the unscaled grid. Paths
/// are fitted to the unscaled grid first, so that a stroke covers the same place at every scale.
namespace ink {

/// An image in memory that the caller owns, 32 bits a pixel.
struct Image {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;   ///< pixels from one row to the next
    double scale = 1; ///< above 0
};

struct Pen {
    std::uint32_t pixel; ///< the value written
    double width;        ///< pixels of the unscaled grid, above 0
};

struct Place {
    double x;
    double y;
};

/// A part of an image. right and bottom are the first column and row after it. An empty area is all zeros.
struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    friend bool operator==(const Area&, const Area&) = default;
};

// Each function returns an area that contains all pixels that it inked.
Area line(const Image& image, const Pen& pen, Place from, Place to);
/// The radius is 0 or more.
Area circle(const Image& image, const Pen& pen, Place centre, double radius);
/// The radius is 0 or more. The arc goes counter-clockwise on the screen from start to end; these are angles from +X in
/// radians, of any size.
Area arc(const Image& image, const Pen& pen, Place centre, double radius, double start, double end);

} // namespace ink

} // namespace schemlet
