#include "tests/record/record.h"

#include "shell/confirmations.h"

#include <algorithm>

namespace schemlet {

namespace {

using State = CanvasState;

constexpr std::pair<const char*, int State::*> switches[] = {
    {"heading", &State::heading},       {"penMoved", &State::penMoved},     {"savedMark", &State::savedMark},
    {"eraseMode", &State::eraseMode},   {"lineTool", &State::lineTool},     {"rectTool", &State::rectTool},
    {"pencilTool", &State::pencilTool}, {"autoJumper", &State::autoJumper}, {"toolboxFollow", &State::toolboxFollow},
    {"diodeCount", &State::diodeCount}, {"blinkCount", &State::blinkCount}};
constexpr std::pair<const char*, Color State::*> colors[] = {{"wireColor", &State::wireColor},
                                                             {"pickedColor", &State::pickedColor},
                                                             {"probeColor", &State::probeColor},
                                                             {"paperColor", &State::paperColor},
                                                             {"canvasBackColor", &State::canvasBackColor}};
constexpr std::pair<const char*, std::string State::*> texts[] = {
    {"fileTitle", &State::fileTitle},     {"saveFault", &State::saveFault},     {"notice", &State::notice},
    {"resistValue", &State::resistValue}, {"inductValue", &State::inductValue}, {"capacValue", &State::capacValue}};
std::string plain(std::string_view caption)
{
    std::string text(caption);
    std::erase(text, '&');
    const auto first = text.find_first_not_of(' ');
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

template <typename Fields> std::string changed(const Fields& fields, const State& before, const State& now)
{
    std::string text;
    for (const auto& [name, field] : fields) {
        text += before.*field == now.*field ? "" : std::string(name) + " = " + written(now.*field) + "\n";
    }
    return text;
}

/// The fields that have changed.
std::string differences(const State& before, const State& now)
{
    std::string text = changed(switches, before, now) + changed(colors, before, now) + changed(texts, before, now) +
                       changed(sumsAndResults, before, now);
    for (std::size_t i = 0; i < confirmCount; ++i) {
        const std::string name(confirmItems[i].text());
        text += before.confirm[i] == now.confirm[i] ? "" : "confirm " + name + " = " + written(now.confirm[i]) + "\n";
    }
    return text;
}

std::string totals(const State& state)
{
    std::string text;
    for (const auto& [name, number] : sumsAndResults) {
        text += state.*number == 0 ? "" : std::string(", ") + name + " " + written(state.*number);
    }
    return text + (state.diodeCount == 0 ? "" : ", diodes " + std::to_string(state.diodeCount));
}

/// Where the next text goes, and how the next stroke looks.
std::string nextInk(const RecordingSurface& surface)
{
    const int width = surface.drawWidth();
    return "text " + placed(surface.current().x, surface.current().y) + ", color " +
           std::to_string(surface.foreColor()) + (width == 2 ? "" : ", width " + std::to_string(width));
}

std::string penAndInk(const Rig& rig)
{
    return "pen " + placed(rig.form.x, rig.form.y) + ", " + nextInk(rig.surface) + "\n";
}

/// Counts strokes if there are many: the record has those of every component in sections of their own.
std::string inShort(const std::vector<std::string>& ink)
{
    const auto isStroke = [](const std::string& line) {
        const auto call = split(line, " ").front();
        return call == "line" || call == "box" || call == "circle" || call == "arc";
    };
    constexpr int few = 2;
    const auto count = std::ranges::count_if(ink, isStroke);
    std::string text = count > few ? std::to_string(count) + " strokes\n" : "";
    for (const std::string& line : ink) {
        text += count > few && isStroke(line) ? "" : line + "\n";
    }
    return text;
}

} // namespace

std::vector<Item> itemsOf(std::initializer_list<Name> menus)
{
    const Rig rig;
    const auto& rows = rig.window.menuRows;
    std::vector<Item> items;
    std::vector<std::string> captions;
    bool wanted = false;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [depth, item] = rows[i];
        captions.resize(static_cast<std::size_t>(depth));
        captions.push_back(plain(item.caption));
        wanted = depth == 0 ? std::ranges::count(menus, item.name) > 0 : wanted;
        const bool last = i + 1 == rows.size() || rows[i + 1].first <= depth;
        if (wanted && last && item.caption != "-") {
            items.push_back({item.name, captions.size() > 2 ? captions[1] + ", " + captions[2] : captions.back()});
        }
    }
    return items;
}

NotingRig::NotingRig(int heading, const char* reply)
{
    for (Color color = colorInHand; const Item& item : itemsOf({"cc", "fc"})) {
        dialogs.replyTo = [&color](Asked /*color*/) { return written(color); };
        ++color;
        run(item.click());
    }
    const bool agrees = std::string_view(reply) == "yes";
    const std::map<Asked, std::string> replies{
        {Asked::box, reply}, {Asked::text, agrees ? "4.70" : "cancel"}, {Asked::color, "200"}, {Asked::file, "cancel"}};
    dialogs.replyTo = [replies](Asked asked) { return replies.at(asked); };
    surface.setForeColor(colorInHand);
    window.setLeft(control::Picture1, 77);
    form.heading = heading;
    run("tick statusTimer");
    surface.notedColor.reset();
    ink.take();
    changes.take();
}

std::string NotingRig::after(std::string_view script)
{
    run(script);
    const auto& marker = window.at("Picture1");
    return ink.take() + "pen " + placed(form.x, form.y) + ", marker " + placed(marker.left, marker.top) + ", " +
           nextInk(surface) + totals(form) + "\n";
}

std::string played(Rig& rig, std::string_view event)
{
    const CanvasState before = rig.form;
    const std::string placeBefore = penAndInk(rig);
    rig.run(event);
    const std::string place = penAndInk(rig);
    return inShort(rig.ink.takeLines()) + (place == placeBefore ? "" : place) + rig.changes.take() +
           differences(before, rig.form);
}

} // namespace schemlet
