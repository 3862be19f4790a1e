#include "platform/ink/changes.h"

#include <algorithm>
#include <utility>

namespace schemlet {

namespace ink {

namespace {

int squares(int pixels)
{
    return (pixels + squareSide - 1) / squareSide;
}

/// Calls visit(the row's first pixel in the image, its index in the square, the number of pixels) for each row of a
/// square, as far as the row lies on the image.
template <typename Visit> void forEachRow(const Image& image, GridPlace place, Visit visit)
{
    const int left = place.column * squareSide;
    const int top = place.row * squareSide;
    const int columns = std::clamp(image.width - left, 0, squareSide);
    const int rows = std::clamp(image.height - top, 0, squareSide);
    for (int row = 0; row < rows; ++row) {
        visit(image.pixels + static_cast<std::ptrdiff_t>(top + row) * image.stride + left, row * squareSide, columns);
    }
}

bool isWithin(const Image& image, GridPlace place)
{
    return (place.column + 1) * squareSide <= image.width && (place.row + 1) * squareSide <= image.height;
}

SquarePixels read(const Image& image, std::uint32_t paper, GridPlace place)
{
    SquarePixels pixels;
    if (!isWithin(image, place)) {
        pixels.fill(paper);
    }
    forEachRow(image, place, [&pixels](const std::uint32_t* from, int at, int columns) {
        std::copy_n(from, columns, pixels.begin() + at);
    });
    return pixels;
}

/// Whether two images of the same sheet have equal squares in a place.
bool areAlike(const Image& one, const Image& other, std::uint32_t paper, GridPlace place)
{
    if (!isWithin(one, place) || !isWithin(other, place)) {
        return read(one, paper, place) == read(other, paper, place);
    }
    const auto row = [top = std::ptrdiff_t{place.row} * squareSide, left = std::ptrdiff_t{place.column} * squareSide](
                         const Image& image, int at) { return image.pixels + (top + at) * image.stride + left; };
    for (int at = 0; at < squareSide; ++at) {
        if (!std::equal(row(one, at), row(one, at) + squareSide, row(other, at))) {
            return false;
        }
    }
    return true;
}

void write(const Image& image, GridPlace place, const SquarePixels& pixels)
{
    forEachRow(image, place,
               [&pixels](std::uint32_t* to, int at, int columns) { std::copy_n(pixels.begin() + at, columns, to); });
}

std::vector<std::uint32_t> packed(const SquarePixels& pixels)
{
    const bool alike = std::equal(pixels.begin() + 1, pixels.end(), pixels.begin());
    return {pixels.begin(), alike ? pixels.begin() + 1 : pixels.end()};
}

SquarePixels unpacked(const std::vector<std::uint32_t>& packed)
{
    SquarePixels pixels;
    if (packed.size() == 1) {
        pixels.fill(packed.front());
    } else {
        std::ranges::copy(packed, pixels.begin());
    }
    return pixels;
}

Area inSquares(const Area& area)
{
    return {area.left / squareSide, area.top / squareSide, squares(area.right), squares(area.bottom)};
}

template <typename Visit> void forEachSquare(const Area& grid, Visit visit)
{
    for (int row = grid.top; row < grid.bottom; ++row) {
        for (int column = grid.left; column < grid.right; ++column) {
            visit(GridPlace{row, column});
        }
    }
}

} // namespace

std::size_t Patch::bytes() const
{
    constexpr std::size_t overhead = 28; // of a small block, which takes 32 bytes at least
    std::size_t sum = squares.capacity() * sizeof(Square);
    for (const Square& square : squares) {
        sum += square.pixels.capacity() * sizeof(std::uint32_t) + overhead;
    }
    return sum;
}

void Patch::add(Patch later)
{
    after = later.after;
    for (Square& square : later.squares) {
        const auto place = std::ranges::lower_bound(squares, square.place, {}, &Square::place);
        if (place == squares.end() || place->place != square.place) {
            squares.insert(place, std::move(square));
        }
    }
}

Area cover(const Patch& patch)
{
    Area area;
    for (const auto& [place, pixels] : patch.squares) {
        const Area square{place.column * squareSide, place.row * squareSide, (place.column + 1) * squareSide,
                          (place.row + 1) * squareSide};
        area = area.right == 0 ? square
                               : Area{std::min(area.left, square.left), std::min(area.top, square.top),
                                      std::max(area.right, square.right), std::max(area.bottom, square.bottom)};
    }
    return area;
}

Patch reverse(const Image& image, std::uint32_t paper, const Patch& patch)
{
    Patch reversed{.before = patch.after, .after = patch.before, .squares = {}};
    reversed.squares.reserve(patch.squares.size());
    for (const Patch::Square& square : patch.squares) {
        reversed.squares.push_back({square.place, packed(read(image, paper, square.place))});
    }
    return reversed;
}

void Changes::mark(const Area& area)
{
    const Area& last = m_lastMarked;
    if (area.left >= last.left && area.top >= last.top && area.right <= last.right && area.bottom <= last.bottom) {
        return; // the next dot of a wire often marks the same squares
    }
    const Area grid = inSquares(area);
    forEachSquare(grid, [this](GridPlace place) { markSquare(place); });
    m_lastMarked = {grid.left * squareSide, grid.top * squareSide, grid.right * squareSide, grid.bottom * squareSide};
}

void Changes::markSquare(GridPlace place)
{
    if (place.column >= m_columns) {
        m_columns = place.column + 1;
        m_isMarked.clear();
        for (const GridPlace marked : m_marked) {
            markOf(marked) = true;
        }
    }
    if (auto marked = markOf(place); !marked) {
        marked = true;
        m_marked.push_back(place);
    }
}

std::vector<bool>::reference Changes::markOf(GridPlace place)
{
    const std::size_t index = static_cast<std::size_t>(place.row) * static_cast<std::size_t>(m_columns) +
                              static_cast<std::size_t>(place.column);
    if (index >= m_isMarked.size()) {
        m_isMarked.resize(index + 1);
    }
    return m_isMarked[index];
}

void Changes::grow(int width, int height)
{
    m_sheet.width = width;
    m_sheet.height = height;
}

Patch Changes::take(const Image& image, std::uint32_t paper)
{
    Patch patch{.before = m_sheet, .after = {image.width, image.height, paper}, .squares = {}};
    const bool newSheet = patch.before != patch.after;
    if (newSheet) {
        mark({0, 0, std::max(m_sheet.width, image.width), std::max(m_sheet.height, image.height)});
    }
    std::ranges::sort(m_marked);
    for (const GridPlace place : m_marked) {
        markOf(place) = false;
        if (!newSheet && areAlike(copy(), image, paper, place)) {
            continue;
        }
        const SquarePixels before = read(copy(), m_sheet.paper, place);
        const SquarePixels now = read(image, paper, place);
        if (before != now) {
            patch.squares.push_back({place, packed(before)});
        }
        if (!newSheet) {
            follow(image, place, now);
        }
    }
    m_marked.clear();
    m_lastMarked = {};
    if (newSheet) {
        start(image, patch.after);
    }
    return patch;
}

void Changes::put(const Image& image, std::uint32_t paper, const Patch& patch)
{
    const Sheet sheet{image.width, image.height, paper};
    const bool newSheet = sheet != m_sheet;
    for (const auto& [place, packedPixels] : patch.squares) {
        const SquarePixels pixels = unpacked(packedPixels);
        write(image, place, pixels);
        if (!newSheet) {
            follow(image, place, pixels);
        }
    }
    if (newSheet) {
        start(image, sheet);
    }
}

void Changes::accept(const Image& image, std::uint32_t paper, const Area& area)
{
    const Sheet sheet{image.width, image.height, paper};
    if (sheet != m_sheet) {
        return start(image, sheet);
    }
    followArea(image, area);
}

/// Starts a new copy of the image. Blank paper needs no copy.
void Changes::start(const Image& image, const Sheet& sheet)
{
    m_sheet = sheet;
    m_pixels = {};
    m_width = m_height = 0;
    followArea(image, {0, 0, image.width, image.height});
}

void Changes::followArea(const Image& image, const Area& area)
{
    forEachSquare(inSquares(area), [&](GridPlace place) {
        if (!areAlike(copy(), image, m_sheet.paper, place)) {
            follow(image, place, read(image, m_sheet.paper, place));
        }
    });
}

void Changes::follow(const Image& image, GridPlace place, const SquarePixels& pixels)
{
    if (m_width < image.width || m_height < image.height) {
        const std::size_t count = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
        std::vector<std::uint32_t> larger(count, m_sheet.paper);
        for (int row = 0; row < m_height; ++row) {
            std::copy_n(m_pixels.begin() + static_cast<std::ptrdiff_t>(row) * m_width, m_width,
                        larger.begin() + static_cast<std::ptrdiff_t>(row) * image.width);
        }
        m_pixels = std::move(larger);
        m_width = image.width;
        m_height = image.height;
    }
    write(copy(), place, pixels);
}

Image Changes::copy()
{
    return {m_pixels.data(), m_width, m_height, m_width};
}

} // namespace ink

void InkChange::add(InkChange later)
{
    picture.add(std::move(later.picture));
    if (screenNumber == later.screenNumber) {
        screen.add(std::move(later.screen));
    } else {
        screen = {};
        screenNumber = 0;
    }
}

} // namespace schemlet
