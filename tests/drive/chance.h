#pragma once

#include "platform/surface.h"

#include <array>
#include <random>
#include <string>

namespace schemlet {

/// Seeded random source: the same seed gives the same sequence.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : m_random(seed) {}

    /// 0 to count - 1
    int below(std::size_t count) { return static_cast<int>(m_random() % count); }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <typename List> const auto& of(const List& list)
    {
        return *std::next(std::begin(list), below(std::size(list)));
    }

    Color color() { return oneIn(2) ? of(std::array{black, white}) : static_cast<Color>(below(0x1000000)); }

    /// Mostly on the canvas, sometimes far away from it.
    float place()
    {
        const auto fine = static_cast<float>(below(200'000)) / 8 - 2000;
        return oneIn(50) ? fine * of(std::array{1e3F, -1e10F, 1e-30F}) : fine;
    }

    std::string text()
    {
        static constexpr const char* texts[] = {"",       "10",    "0.5",    "-3",  "0",       " 7 ",  "12V", "1e308",
                                                "-1e308", "1e999", "1e-320", "nan", "1E-5 \n", "１２", "1,5", "-"};
        switch (below(8)) {
        case 0: return std::string(static_cast<std::size_t>(below(5000)), of(std::string_view("09.x- ")));
        case 1: return std::to_string(below(100'000)) + of(std::array{"e", "E-", "."}) + std::to_string(below(400));
        case 2: {
            std::string garbage(static_cast<std::size_t>(below(20)), ' ');
            for (char& c : garbage) {
                c = static_cast<char>(below(256));
            }
            return garbage;
        }
        default: return of(texts);
        }
    }

    std::string path() { return oneIn(4) ? "" : of(std::array{"", "/", "/broken/", "a."}) + text(); }

private:
    std::mt19937_64 m_random;
};

} // namespace schemlet
