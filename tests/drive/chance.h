#pragma once

#include "platform/dialogs.h"
#include "platform/pictures.h"
#include "platform/runtime_error.h"

#include <array>
#include <functional>
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

    /// Mostly on the canvas, now and then far away from it.
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

    std::string path() { return oneIn(4) ? "" : of(std::array{"", "/", "/no/such/", "a."}) + text(); }

private:
    std::mt19937_64 m_random;
};

/// Answers with whatever the boxes let through.
class RandomDialogs final : public Dialogs {
public:
    explicit RandomDialogs(Chance& chance) : m_chance(chance) {}

    std::function<void()> meanwhile; ///< while a box is open, the clocks go on

    int messageBox(std::string_view /*prompt*/, Box style, std::string_view /*title*/) override
    {
        meanwhile();
        switch (style) {
        case Box::yesNoQuestion:
        case Box::walkQuestion: return m_chance.of(std::array{answer::yes, answer::no});
        case Box::yesNoCancelWarning: return m_chance.of(std::array{answer::yes, answer::no, answer::cancel});
        default: return answer::no;
        }
    }
    std::optional<std::string> inputBox(std::string_view /*prompt*/, std::string_view /*title*/,
                                        std::string_view preset) override
    {
        meanwhile();
        return m_chance.oneIn(2) ? m_chance.text() : std::string(preset);
    }
    std::optional<Color> pickColor(std::string_view /*title*/, Color /*first*/) override
    {
        return m_chance.oneIn(3) ? std::nullopt : std::optional(m_chance.color());
    }
    std::optional<std::string> openFile() override { return pathOrNone(); }
    std::optional<std::string> saveFile(std::string_view /*name*/, std::string_view /*extension*/,
                                        std::string_view /*filter*/) override
    {
        return pathOrNone();
    }

private:
    std::optional<std::string> pathOrNone()
    {
        return m_chance.oneIn(3) ? std::nullopt : std::optional<std::string>(m_chance.path());
    }

    Chance& m_chance;
};

/// Fails half of the time.
class RandomPictures final : public Pictures {
public:
    explicit RandomPictures(Chance& chance) : m_chance(chance) {}
    void loadBackground(std::string_view /*path*/) override { fail(Fault::invalidPicture); }
    void saveImage(std::string_view /*path*/) override { fail(Fault::pictureNotSaved); }

private:
    void fail(Fault fault)
    {
        if (m_chance.oneIn(2)) {
            throw RuntimeError(fault, "");
        }
    }

    Chance& m_chance;
};

} // namespace schemlet
