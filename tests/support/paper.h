#pragma once

#include "platform/ink/ink.h"

#include <string>
#include <vector>

namespace schemlet {

/// A small image, blank at first.
struct Paper {
    int width = 0;
    int height = 0;
    double scale = 1;
    std::vector<std::uint32_t> pixels = std::vector<std::uint32_t>(index(0, height));

    [[nodiscard]] ink::Image image() { return {pixels.data(), width, height, width, scale}; }
    [[nodiscard]] std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(x + y * std::ptrdiff_t{width});
    }
    [[nodiscard]] int at(int x, int y) const { return static_cast<int>(pixels[index(x, y)]); }
    /// One character for each pixel, one line for each row.
    [[nodiscard]] std::string text() const
    {
        std::string out;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                out += at(x, y) == 0 ? "." : std::to_string(at(x, y));
            }
            out += "\n";
        }
        return out;
    }
};

} // namespace schemlet
