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

inline constexpr double lineHeight = 13 * twipsPerPixel; ///< of printed text, in twips

/// A place on the canvas in twips, X to the right, Y downwards, (0, 0) at its top-left corner.
struct Point {
    float x = 0;
    float y = 0;
};

/// The canvas as the drawing code sees it: an image that keeps all ink until it is wiped. Lengths are in twips unless
/// the comment says pixels. Any finite coordinate is accepted; strokes are clipped to the image. Nothing is
/// antialiased, so that point() finds exactly the colours that were drawn.
class Surface {
public:
    virtual ~Surface() = default;

    /// A straight stroke with round ends in the foreground colour. A stroke of zero length is a dot. The current point
    /// moves to the end.
    virtual void line(Point from, Point to) = 0;
    /// The outline of the rectangle with these opposite corners. The current point moves to the second one.
    virtual void box(Point from, Point to) = 0;
    /// The outline of a circle, radius 0 or more. A circle smaller than the pen is a disc. The current point stays.
    virtual void circle(Point centre, float radius) = 0;
    /// Part of a circle, radius 0 or more, counter-clockwise on the screen from start to end. The angles are in radians
    /// from +X and may be of any size. The current point stays.
    virtual void arc(Point centre, float radius, float start, float end) = 0;
    /// Prints one line of UTF-8 text with its top-left corner at the current point. With endLine, the current point
    /// moves to the canvas's left edge one text line lower, otherwise to the end of the text.
    virtual void print(std::string_view text, bool endLine) = 0;
    /// How far print() would move the current point to the right.
    [[nodiscard]] virtual double textWidth(std::string_view text) const = 0;

    /// The colour of the pixel at a place; none outside the image.
    [[nodiscard]] virtual std::optional<Color> point(Point place) const = 0;

    /// Wipes ink and background picture and resizes the image to the window.
    virtual void clear() = 0;
    /// Sets the colour of the paper, and wipes ink and background picture. The image keeps its size.
    virtual void setBackColor(Color color) = 0;
    /// Sets the colour of everything drawn from now on.
    virtual void setForeColor(Color color) = 0;
    [[nodiscard]] virtual Color foreColor() const = 0;

    /// The pen's width in pixels, 1 or more; 2 at start.
    [[nodiscard]] virtual int drawWidth() const = 0;
    virtual void setDrawWidth(int pixels) = 0;

    /// The place where the next print() begins. The mouse tools start from it, too.
    [[nodiscard]] virtual Point current() const = 0;
    virtual void setCurrent(Point place) = 0;

    /// The ink and the paper that were replaced since the last call; empty if nothing was. New room of a larger window
    /// is not a change.
    [[nodiscard]] virtual InkChange takeChange() = 0;
    /// Undoes the latest change, or redoes the change undone last. Restores the image, its size and its paper. If the
    /// window has grown since, the image has more of that paper. The change then holds what it replaced, so that the
    /// next call reverses it.
    virtual void exchange(InkChange& change) = 0;
};

} // namespace schemlet
