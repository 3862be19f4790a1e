#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace schemlet {

struct InkChange; // platform/ink/changes.h

/// 0x00BBGGRR, eight bits a channel: 0 is black, 0xFFFFFF white.
using Color = std::uint32_t;

inline constexpr Color black = 0x000000;
inline constexpr Color white = 0xFFFFFF;

/// One pixel of an unscaled screen (96 dpi) is 15 twips; a twip is 1/1440 inch.
inline constexpr double twipsPerPixel = 15;

/// A place on the canvas in twips, X to the right, Y downwards, (0, 0) at its top-left corner.
struct Point {
    float x = 0;
    float y = 0;
};

/// The canvas as the drawing code sees it: ink that stays until it is wiped. Every length is in twips unless it
/// says pixels. Any finite coordinate is accepted; what falls outside the retained image is clipped. Nothing is
/// antialiased, so that point() finds exactly the colours that were drawn.
class Surface {
public:
    virtual ~Surface() = default;

    /// A straight stroke with round ends in the foreground colour; a zero-length one leaves a dot. The current
    /// point moves to its end.
    virtual void line(Point from, Point to) = 0;
    /// The outline of the rectangle with these opposite corners. The current point moves to the second one.
    virtual void box(Point from, Point to) = 0;
    /// A full circle outline, radius 0 or more; one smaller than the pen is a disc. The current point stays.
    virtual void circle(Point centre, float radius) = 0;
    /// A circle's part, radius 0 or more, counter-clockwise on the screen from start to end: angles in radians from +X,
    /// of any size. The current point stays.
    virtual void arc(Point centre, float radius, float start, float end) = 0;
    /// Prints one line of UTF-8 text with the current point as its top-left corner. endLine moves the current point to
    /// the left edge one text line lower; otherwise it stands behind the text.
    virtual void print(std::string_view text, bool endLine) = 0;

    /// The colour of the pixel at a place; none outside the retained image.
    [[nodiscard]] virtual std::optional<Color> point(Point place) const = 0;

    /// Wipes ink and background picture and gives the image the window's size again.
    virtual void clear() = 0;
    /// Sets the colour of the paper, which wipes ink and background picture; the image keeps its size.
    virtual void setBackColor(Color color) = 0;
    /// The colour of everything drawn from now on.
    virtual void setForeColor(Color color) = 0;
    [[nodiscard]] virtual Color foreColor() const = 0;

    /// The pen's width in pixels, 1 or more; 2 at start.
    [[nodiscard]] virtual int drawWidth() const = 0;
    virtual void setDrawWidth(int pixels) = 0;

    /// Where the next print() begins, and the free-hand tools' starting point.
    [[nodiscard]] virtual Point current() const = 0;
    virtual void setCurrent(Point place) = 0;

    /// The ink and the paper that was replaced since this was called last; empty if nothing was. Room that came with a
    /// larger window is no change.
    [[nodiscard]] virtual InkChange takeChange() = 0;
    /// Takes back the latest change, or brings again the earliest one that was taken back: the image, its size and its
    /// paper are what they were, but where the window has grown since, there is more of that paper. The change then
    /// holds what was there.
    virtual void exchange(InkChange& change) = 0;
};

} // namespace schemlet
