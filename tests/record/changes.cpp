#include "platform/ink/changes.h"
#include "tests/record/record.h"
#include "tests/support/paper.h"

#include <algorithm>

namespace schemlet {

namespace {

/// Two lines that are one step.
struct Step {
    const char* title = "";
    ink::Sheet sheet{};
    ink::Place from{}, via{}, to{};
    std::uint32_t pixel = 1;
    bool isAfresh = false; ///< starts with a blank sheet; otherwise the sheet stays or grows
};

constexpr ink::Sheet window{56, 44};
constexpr Step steps[] = {
    {"a line", {40, 36}, {4, 4}, {6, 10}, {20, 12}},
    {"the same again", {40, 36}, {4, 4}, {6, 10}, {20, 12}},
    {"the same in another color", {40, 36}, {4, 4}, {6, 10}, {20, 12}, 2},
    {"to all edges", {40, 36}, {-20, 20}, {60, 20}, {-20, 28}, 3},
    {"to the corner and beside the first line", {40, 36}, {38, 34}, {32, 16}, {4, 2}},
    {"in more room", window, {20, 42}, {54, 40}, {54, 4}, 4},
    {"on other paper", {56, 44, 5}, {20, 16}, {20, 2}, {30, 2}, 1, true},
    {"from the last square to the first", {56, 44, 5}, {50, 42}, {20, 2}, {2, 2}},
    {"on a smaller, upright sheet", {20, 33, 5}, {18, 30}, {18, 30}, {4, 4}, 2, true},
    {"on a larger sheet", {64, 48, 5}, {60, 46}, {60, 46}, {60, 20}, 2, true},
};

/// An image in the corner of a larger one, which is blank outside.
struct InkedImage {
    Paper room{70, 50};
    ink::Sheet sheet;
    ink::Changes changes{0};

    [[nodiscard]] ink::Image image() { return {room.pixels.data(), sheet.width, sheet.height, room.width}; }

    /// Keeps what was on the sheet, as far as there is room for it.
    void fit(const ink::Sheet& fitting)
    {
        for (int y = 0; y < room.height; ++y) {
            for (int x = 0; x < room.width; ++x) {
                if (x >= std::min(sheet.width, fitting.width) || y >= std::min(sheet.height, fitting.height)) {
                    room.pixels[room.index(x, y)] = fitting.paper;
                }
            }
        }
        sheet = fitting;
    }

    [[nodiscard]] ink::Patch draw(const Step& step)
    {
        if (step.isAfresh) {
            sheet = {};
        }
        fit(step.sheet);
        changes.mark(ink::line(image(), {step.pixel, 2}, step.from, step.via));
        changes.mark(ink::line(image(), {step.pixel, 2}, step.via, step.to));
        return changes.take(image(), sheet.paper);
    }

    /// Swaps the pixels as the program does. Its image is never smaller than the window.
    void exchange(ink::Patch& patch)
    {
        ink::Patch reverse = ink::reverse(image(), sheet.paper, patch);
        const auto& before = patch.before;
        fit({std::max(before.width, window.width), std::max(before.height, window.height), before.paper});
        changes.put(image(), sheet.paper, patch);
        patch = std::move(reverse);
    }

    /// The changes that nobody marked.
    [[nodiscard]] ink::Patch overlooked()
    {
        changes.mark({0, 0, sheet.width, sheet.height});
        return changes.take(image(), sheet.paper);
    }
};

std::string written(const ink::Sheet& sheet)
{
    return std::to_string(sheet.width) + "x" + std::to_string(sheet.height) + " on " + std::to_string(sheet.paper);
}

std::string written(const ink::Patch& patch)
{
    if (patch.empty()) {
        return "nothing\n";
    }
    const ink::Area area = ink::cover(patch);
    std::string text = "from " + written(patch.before) + " to " + written(patch.after) + " within " +
                       std::to_string(area.left) + " " + std::to_string(area.top) + ", " + std::to_string(area.right) +
                       " " + std::to_string(area.bottom) + ", " + std::to_string(patch.bytes() / 1024) + " KiB\n";
    for (const auto& [place, pixels] : patch.squares) {
        const int side = pixels.size() == 1 ? 1 : ink::squareSide;
        text += "row " + std::to_string(place.row) + ", column " + std::to_string(place.column) + "\n" +
                Paper{side, side, 1, pixels}.text();
    }
    return text;
}

/// The text of several steps as one, on one screen and then on another.
std::string joined(const std::vector<ink::Patch>& patches)
{
    InkChange all{patches.front(), patches.front(), 1};
    for (const ink::Patch& patch : patches) {
        all.add({patch, patch, 1});
    }
    const std::string text = written(all.picture) + "screen\n" + written(all.screen) + "both " +
                             std::to_string(all.bytes() / 1024) + " KiB\n";
    all.add({patches.front(), patches.front(), 2});
    return text + "another screen " + std::to_string(all.screenNumber) + " " + written(all.screen);
}

} // namespace

void recordChanges(Record& record)
{
    InkedImage drawing;
    std::vector<ink::Patch> patches;
    std::vector<std::vector<std::uint32_t>> images;
    for (const Step& step : steps) {
        if (!step.isAfresh) {
            drawing.changes.grow(step.sheet.width, step.sheet.height);
        }
        images.push_back(drawing.room.pixels);
        patches.push_back(drawing.draw(step));
        record.push_back({std::string("Change, ") + step.title,
                          written(patches.back()) + "overlooked " + written(drawing.overlooked())});
    }
    images.push_back(drawing.room.pixels);
    record.push_back({"Changes in one", joined({patches.begin() + 2, patches.end()})});
    std::string text;
    const auto exchange = [&](std::size_t step, std::size_t image) {
        drawing.exchange(patches[step]);
        text += drawing.room.pixels == images[image] ? "as it was\n" : drawing.room.text();
        text += "overlooked " + written(drawing.overlooked());
    };
    for (std::size_t step = patches.size(); step-- > 0;) {
        exchange(step, step);
    }
    for (std::size_t step = 0; step < patches.size(); ++step) {
        exchange(step, step + 1);
    }
    const ink::Area area = ink::line(drawing.image(), {7, 2}, {2, 2}, {50, 2});
    drawing.changes.accept(drawing.image(), drawing.sheet.paper, area);
    record.push_back({"Changes taken back", text + "accepted, overlooked " + written(drawing.overlooked())});
}

} // namespace schemlet
