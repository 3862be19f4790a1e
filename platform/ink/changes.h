#pragma once

#include "platform/ink/ink.h"

#include <array>
#include <compare>
#include <cstddef>
#include <vector>

namespace schemlet {

/// Finds the pixels that a step changed, so that it can be undone. Images are compared square by square, and a square
/// without a change takes no memory.
namespace ink {

/// The size of an image and the colour of its paper. Beyond its edges, everything is paper.
struct Sheet {
    int width = 0;
    int height = 0;
    std::uint32_t paper = 0;

    friend bool operator==(const Sheet&, const Sheet&) = default;
};

inline constexpr int squareSide = 8; ///< pixels
using SquarePixels = std::array<std::uint32_t, std::size_t{squareSide} * squareSide>;

/// The place of a square in the grid of squares.
struct GridPlace {
    int row;
    int column;

    friend auto operator<=>(const GridPlace&, const GridPlace&) = default;
};

/// The pixels that a step replaced.
struct Patch {
    struct Square {
        GridPlace place;
        std::vector<std::uint32_t> pixels; ///< row by row, or a single one if all are equal
    };

    Sheet before;                ///< the image's sheet before the step
    Sheet after;                 ///< the image's sheet after the step
    std::vector<Square> squares; ///< before the step; sorted by place, each place at most once

    [[nodiscard]] bool empty() const { return squares.empty() && before == after; }
    [[nodiscard]] std::size_t bytes() const;
    /// Adds the patch of the following step, so that both are one step.
    void add(Patch later);
};

/// The smallest area that contains all squares of a patch.
[[nodiscard]] Area cover(const Patch& patch);

/// The patch that reverses another one: the image's present squares in the places of that patch.
[[nodiscard]] Patch reverse(const Image& image, std::uint32_t paper, const Patch& patch);

/// Finds changes by comparing the image with a copy. There is no copy until something is inked.
class Changes {
public:
    explicit Changes(std::uint32_t paper) : m_sheet{.paper = paper} {}

    /// Call when pixels in this area may have changed.
    void mark(const Area& area);
    /// Call when the image has grown. New room is not a change.
    void grow(int width, int height);
    /// The changes since the last call.
    [[nodiscard]] Patch take(const Image& image, std::uint32_t paper);
    /// Writes a patch's squares into an image that already has the patch's sheet or a larger one. take() does not
    /// report that.
    void put(const Image& image, std::uint32_t paper, const Patch& patch);
    /// Makes take() ignore what has changed in this area.
    void accept(const Image& image, std::uint32_t paper, const Area& area);

private:
    void markSquare(GridPlace place);
    [[nodiscard]] std::vector<bool>::reference markOf(GridPlace place);
    void start(const Image& image, const Sheet& sheet);
    void followArea(const Image& image, const Area& area);
    void follow(const Image& image, GridPlace place, const SquarePixels& pixels);
    [[nodiscard]] Image copy();

    Sheet m_sheet;                       ///< of the image at the last take()
    std::vector<std::uint32_t> m_pixels; ///< the copy; beyond its size, everything is paper
    int m_width = 0;
    int m_height = 0;
    std::vector<GridPlace> m_marked;
    Area m_lastMarked;            ///< whole squares, in pixels
    std::vector<bool> m_isMarked; ///< of each square; rows of m_columns
    int m_columns = 0;
};

} // namespace ink

/// The patches of a step: of the picture, and of the finer image if the screen has one.
struct InkChange {
    ink::Patch picture;
    ink::Patch screen;
    int screenNumber = 0; ///< the finer image that `screen` belongs to

    [[nodiscard]] bool empty() const { return picture.empty() && screen.empty(); }
    [[nodiscard]] std::size_t bytes() const { return picture.bytes() + screen.bytes(); }
    /// Adds the change of the following step, so that both are one step.
    void add(InkChange later);
};

} // namespace schemlet
