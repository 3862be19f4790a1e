#pragma once

#include "platform/ink/ink.h"

#include <array>
#include <compare>
#include <cstddef>
#include <vector>

namespace schemlet {

/// Which pixels a step changed, so that it can be taken back. Images are compared square by square: what did not change
/// takes no memory.
namespace ink {

/// An image's size, and the pixel of its paper, which goes on beyond its edges.
struct Sheet {
    int width = 0;
    int height = 0;
    std::uint32_t paper = 0;

    friend bool operator==(const Sheet&, const Sheet&) = default;
};

inline constexpr int squareSide = 8; ///< pixels
using SquarePixels = std::array<std::uint32_t, squareSide * squareSide>;

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
        std::vector<std::uint32_t> pixels; ///< row by row, or a single one if all are alike
    };

    Sheet before;                ///< of the image with these squares
    Sheet after;                 ///< of the image that the step left
    std::vector<Square> squares; ///< by place, each place at most once

    [[nodiscard]] bool empty() const { return squares.empty() && before == after; }
    [[nodiscard]] std::size_t bytes() const;
    /// Takes in what the step that followed replaced.
    void add(Patch later);
};

/// The part of an image that holds all squares of a patch.
[[nodiscard]] Area cover(const Patch& patch);

/// The squares that the image has where the patch has others: what brings them back.
[[nodiscard]] Patch reverse(const Image& image, std::uint32_t paper, const Patch& patch);

/// Finds what changed by comparing the image with a copy. There is no copy as long as nothing was inked.
class Changes {
public:
    explicit Changes(std::uint32_t paper) : m_sheet{.paper = paper} {}

    /// Pixels in this part of the image may have changed.
    void mark(const Area& area);
    /// The image got more room, which is no change.
    void grow(int width, int height);
    /// What changed since this was called last.
    [[nodiscard]] Patch take(const Image& image, std::uint32_t paper);
    /// Writes a patch's squares into an image that has the patch's sheet already, or a larger one. That is no change.
    void put(const Image& image, std::uint32_t paper, const Patch& patch);
    /// Lets what changed in this area be no change.
    void accept(const Image& image, std::uint32_t paper, const Area& area);

private:
    void markSquare(GridPlace place);
    void start(const Image& image, const Sheet& sheet);
    void follow(const Image& image, GridPlace place, const SquarePixels& pixels);
    [[nodiscard]] Image copy();
    [[nodiscard]] std::size_t indexOf(GridPlace place) const;

    Sheet m_sheet;                       ///< of the image when something was taken last
    std::vector<std::uint32_t> m_pixels; ///< the copy; smaller than the image where that has only paper
    int m_width = 0;
    int m_height = 0;
    std::vector<GridPlace> m_marked;
    Area m_lastMarked;            ///< whole squares
    std::vector<bool> m_isMarked; ///< m_columns in a row
    int m_columns = 0;
};

} // namespace ink

/// What a step did to the picture, and to the finer image of it if the screen has one.
struct InkChange {
    ink::Patch picture;
    ink::Patch screen;
    int screenNumber = 0; ///< tells finer images apart: the patch fits no other one

    [[nodiscard]] bool empty() const { return picture.empty() && screen.empty(); }
    [[nodiscard]] std::size_t bytes() const { return picture.bytes() + screen.bytes(); }
    /// Makes one step of this and the one that followed.
    void add(InkChange later);
};

} // namespace schemlet
