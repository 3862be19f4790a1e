#include "platform/ink/finer_ink.h"

#include <algorithm>
#include <cmath>

namespace schemlet {

namespace ink {

namespace {

/// The finer pixels of a part of the canvas. The canvas's last pixels extend to the edges of the finer image.
Area finerPart(const Image& canvas, const Image& finer, const Area& part)
{
    const auto edge = [&](int place, int end, int finerEnd) {
        return place >= end ? finerEnd : std::min(finerEnd, static_cast<int>(std::ceil(place * finer.scale - 0.5)));
    };
    return {edge(part.left, canvas.width, finer.width), edge(part.top, canvas.height, finer.height),
            edge(part.right, canvas.width, finer.width), edge(part.bottom, canvas.height, finer.height)};
}

Area grownWithin(const Image& image, const Area& part)
{
    return {std::max(0, part.left - 1), std::max(0, part.top - 1), std::min(image.width, part.right + 1),
            std::min(image.height, part.bottom + 1)};
}

std::uint32_t& at(const Image& image, int x, int y)
{
    return image.pixels[static_cast<std::ptrdiff_t>(y) * image.stride + x];
}

template <typename Visit> void forEach(const Area& part, Visit visit)
{
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            visit(x, y);
        }
    }
}

bool has(const Image& image, const Area& part, std::uint32_t pixel)
{
    for (int y = part.top; y < part.bottom; ++y) {
        const std::uint32_t* const row = &at(image, 0, y);
        if (std::find(row + part.left, row + part.right, pixel) != row + part.right) {
            return true;
        }
    }
    return false;
}

} // namespace

void enlarge(const Image& canvas, const Image& finer, const Area& part)
{
    forEach(part, [&](int x, int y) {
        forEach(finerPart(canvas, finer, {x, y, x + 1, y + 1}),
                [&](int finerX, int finerY) { at(finer, finerX, finerY) = at(canvas, x, y); });
    });
}

void reconcile(const Image& canvas, const Image& finer, const Area& part)
{
    forEach(part, [&](int x, int y) {
        const Area one{x, y, x + 1, y + 1};
        const Area around = grownWithin(canvas, one);
        const Area block = finerPart(canvas, finer, one);
        const std::uint32_t pixel = at(canvas, x, y);
        bool shows = false;
        forEach(block, [&](int finerX, int finerY) {
            std::uint32_t& finerPixel = at(finer, finerX, finerY);
            if (finerPixel != pixel && !has(canvas, around, finerPixel)) {
                finerPixel = pixel;
            }
            shows = shows || finerPixel == pixel;
        });
        if (!shows && !has(finer, finerPart(canvas, finer, around), pixel)) {
            enlarge(canvas, finer, one);
        }
    });
}

} // namespace ink

} // namespace schemlet
