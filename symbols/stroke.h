#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

/// A distance from the pen in whole twips: dx to the right, dy downwards.
struct Offset {
    int dx = 0;
    int dy = 0;
};

/// One row of a symbol's stroke table.
struct Stroke {
    enum class Kind {
        line,   ///< from, to; then prints its text, if any, where the line ends
        circle, ///< a full circle around from
        text,   ///< prints its text at the surface's current point
        value   ///< prints what the user typed for this symbol at the surface's current point
    };

    Kind kind = Kind::line;
    Offset from{};
    Offset to{};
    int radius = 0; ///< twips
    std::string_view text{};
    bool endLine = true; ///< printing moves on to the next text line
};

// Rows

constexpr Stroke line(int x1, int y1, int x2, int y2, std::string_view text = {})
{
    return {.kind = Stroke::Kind::line, .from = {x1, y1}, .to = {x2, y2}, .text = text};
}

/// A zero-length line, which leaves its dot.
constexpr Stroke dot(int x, int y)
{
    return line(x, y, x, y);
}

/// A dot with a text whose top-left corner is there.
constexpr Stroke label(int x, int y, std::string_view text)
{
    return line(x, y, x, y, text);
}

constexpr Stroke circle(int x, int y, int radius)
{
    return {.kind = Stroke::Kind::circle, .from = {x, y}, .radius = radius};
}

constexpr Stroke text(std::string_view text)
{
    return {.kind = Stroke::Kind::text, .text = text};
}

/// A text after which the surface's current point stands behind it instead of on the next text line.
constexpr Stroke sameLine(std::string_view text)
{
    return {.kind = Stroke::Kind::text, .text = text, .endLine = false};
}

constexpr Stroke value()
{
    return {.kind = Stroke::Kind::value};
}

// Tables: arrays of rows, made from rows or from other tables at compile time

template <std::size_t N> using Strokes = std::array<Stroke, N>;

template <typename... Rows> constexpr Strokes<sizeof...(Rows)> strokes(Rows... rows)
{
    return {rows...};
}

/// The tables' rows, one table after the other.
template <std::size_t... Sizes> constexpr auto join(const Strokes<Sizes>&... tables)
{
    Strokes<(Sizes + ...)> joined{};
    auto next = joined.begin();
    const auto append = [&next](const auto& table) {
        for (const Stroke& stroke : table) {
            *next++ = stroke;
        }
    };
    (append(tables), ...);
    return joined;
}

/// Rows First to Last, both included, counted from 1 as people do.
template <std::size_t First, std::size_t Last, std::size_t N> constexpr auto rows(const Strokes<N>& table)
{
    static_assert(First >= 1 && First <= Last && Last <= N);
    Strokes<Last - First + 1> part{};
    for (std::size_t i = 0; i < part.size(); ++i) {
        part[i] = table[First - 1 + i];
    }
    return part;
}

/// The table with every dx multiplied by signX and every dy by signY.
template <std::size_t N> constexpr Strokes<N> signsTurned(Strokes<N> table, int signX, int signY)
{
    for (Stroke& stroke : table) {
        stroke.from = {signX * stroke.from.dx, signY * stroke.from.dy};
        stroke.to = {signX * stroke.to.dx, signY * stroke.to.dy};
    }
    return table;
}

template <std::size_t N> constexpr Strokes<N> dxNegated(const Strokes<N>& table)
{
    return signsTurned(table, -1, 1);
}

template <std::size_t N> constexpr Strokes<N> dyNegated(const Strokes<N>& table)
{
    return signsTurned(table, 1, -1);
}

/// By 180 degrees about the pen.
template <std::size_t N> constexpr Strokes<N> turned(const Strokes<N>& table)
{
    return signsTurned(table, -1, -1);
}

// Branches

inline constexpr int anyHeading = 0;

/// From which pen the rows of a branch count that moves the pen before it draws.
enum class Origin { penAtStart, movedPen };

/// What a symbol draws for one heading of the pen, and how it moves the pen.
struct Branch {
    int heading = anyHeading; ///< a code of namespace heading, or anyHeading
    std::span<const Stroke> strokes;
    Offset after{};  ///< added to the pen after the strokes
    Offset before{}; ///< added to the pen before them
    Origin origin = Origin::penAtStart;
};
