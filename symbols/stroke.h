#pragma once

#include <span>
#include <string_view>

namespace schemlet {

/// A distance from the pen in whole twips: dx to the right, dy downwards.
struct Offset {
    int dx = 0;
    int dy = 0;
};

/// One row of a symbol's stroke table.
struct Stroke {
    enum class Kind {
        line,   ///< goes from `from` to `to` and prints its text, if any, at its end
        circle, ///< a full circle with the centre `from`
        text,   ///< prints its text at the surface's current point
        value   ///< prints what the user typed for this symbol at the surface's current point
    };

    Kind kind = Kind::line;
    Offset from{};
    Offset to{};
    int radius = 0; ///< twips
    std::string_view text{};
    bool endLine = true; ///< after the text, the current point moves to the next text line
};

inline constexpr int anyHeading = 0;

/// The place from which a branch's offsets count, if it moves the pen before it draws.
enum class Origin { penAtStart, movedPen };

/// What a symbol draws for one heading of the pen, and how it moves the pen.
struct Branch {
    int heading = anyHeading; ///< a code of namespace heading, or anyHeading
    Offset before{};          ///< added to the pen before the strokes
    Origin origin = Origin::penAtStart;
    std::span<const Stroke> strokes;
    Offset after{}; ///< added to the pen after the strokes
};

} // namespace schemlet
