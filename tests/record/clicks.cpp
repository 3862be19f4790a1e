#include "tests/record/noting_rig.h"
#include "tests/record/record.h"

#include <algorithm>

namespace schemlet {

// Everything that can be clicked, and what comes of it.

namespace {

std::string plain(std::string_view caption)
{
    std::string text(caption);
    std::erase(text, '&');
    const auto first = text.find_first_not_of(' ');
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

void addMenus(Record& record)
{
    constexpr std::array looks{"", " off", " on", " hidden"};
    const Rig rig;
    std::string rows;
    for (const auto& [depth, item] : rig.window.menuRows) {
        rows += std::string(static_cast<std::size_t>(depth) * 4, ' ') + "|" + std::string(item.caption) + "|" +
                std::string(item.shortcut) + "| " + std::string(item.name.text()) +
                looks.at(static_cast<std::size_t>(item.look)) + "\n";
    }
    record.push_back({"Menus", rows});
    record.push_back({"Toolbar and shortcuts", rig.window.toolRows});
    std::string colors;
    for (Color color = NotingRig::colorInHand; const Item& item : itemsOf({"cc", "fc"})) {
        colors += std::to_string(++color) + " " + item.title + "\n";
    }
    record.push_back({"Colors in this record", colors + "100 what was in hand before\n"});
}

void addClicks(Record& record)
{
    const Rig program;
    for (const std::string_view name : program.window.names()) {
        std::string body;
        for (const std::string verb : {"hover ", "click "}) {
            NotingRig rig(heading::right, "no");
            rig.form.penMoved = 1; // Open does something only then
            const std::string event = verb + std::string(name);
            const std::string facts = played(rig, event + "; tick statusTimer");
            body += facts.empty() ? "" : "> " + event + "\n" + facts;
        }
        if (!body.empty()) {
            record.push_back({"Click on " + std::string(name), body});
        }
    }
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

void recordClicks(Record& record)
{
    addMenus(record);
    addClicks(record);
}

} // namespace schemlet
