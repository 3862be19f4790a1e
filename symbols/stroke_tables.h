#pragma once

#include "symbols/stroke.h"

#include <array>
#include <cstddef>

namespace schemlet {

// Rows

constexpr Stroke line(int x1, int y1, int x2, int y2, std::string_view text = {})
{
    return {.kind = Stroke::Kind::line, .from = {x1, y1}, .to = {x2, y2}, .text = text};
}

/// A zero-length line, which leaves a dot.
constexpr Stroke dot(int x, int y)
{
    return line(x, y, x, y);
}

/// A dot with a text; the dot is at the text's top-left corner.
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

/// A text that leaves the surface's current point at its end instead of on the next text line.
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

/// All rows of several tables, one table after the other.
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

/// Rows First to Last, both included, counted from 1.
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
template <std::size_t N> constexpr Strokes<N> withSigns(Strokes<N> table, int signX, int signY)
{
    for (Stroke& stroke : table) {
        stroke.from = {signX * stroke.from.dx, signY * stroke.from.dy};
        stroke.to = {signX * stroke.to.dx, signY * stroke.to.dy};
    }
    return table;
}

template <std::size_t N> constexpr Strokes<N> dxNegated(const Strokes<N>& table)
{
    return withSigns(table, -1, 1);
}

template <std::size_t N> constexpr Strokes<N> dyNegated(const Strokes<N>& table)
{
    return withSigns(table, 1, -1);
}

/// The table turned by 180 degrees about the pen.
template <std::size_t N> constexpr Strokes<N> turned(const Strokes<N>& table)
{
    return withSigns(table, -1, -1);
}

} // namespace schemlet
