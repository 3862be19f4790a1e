#pragma once

#include <cstdint>

namespace schemlet {

/// Which pixels a round pen inks, exactly and without antialiasing: those whose centre lies within half the pen's
/// width of the ideal path. So a line has round ends, a zero-length one is a dot, and a circle smaller than the pen
/// is a disc. Paths are first fitted to the pixel grid, so that every shape looks the same wherever it is drawn, wires
/// and bars are equally thick throughout, and circles are symmetric.
///
/// Places are in pixels, pixel (0, 0) reaching from 0 to 1; any finite place is accepted, what lies outside the
/// image is clipped at no cost. An image with a scale has that many pixels along each of these: paths are fitted to the
/// unscaled grid first, so that the same stroke covers the same place at every scale.
namespace ink {

/// Memory of 32-bit pixels. Borrowed for the call.
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

/// A part of an image; right and bottom are the first column and row behind it. Empty parts are all zeros.
struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    friend bool operator==(const Area&, const Area&) = default;
};

// Each returns a part of the image that holds every pixel it inked.
Area line(const Image& image, const Pen& pen, Place from, Place to);
/// radius is 0 or more.
Area circle(const Image& image, const Pen& pen, Place centre, double radius);
/// radius is 0 or more; from angle start to angle end, counter-clockwise on the screen from +X, in radians of any size.
Area arc(const Image& image, const Pen& pen, Place centre, double radius, double start, double end);

} // namespace ink

} // namespace schemlet
