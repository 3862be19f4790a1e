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
    std::string colors;
    for (Color color = NotingRig::colorInHand; const Item& item : itemsOf({"cc", "fc"})) {
        colors += std::to_string(++color) + " " + item.title + "\n";
    }
    record.push_back({"Colors in this record", colors + "100 what was in hand before\n"});
}

std::string hint(std::string_view name)
{
    Rig rig;
    rig.window.setText(control::sb, "");
    rig.hover(name);
    return rig.window.at(control::sb).text;
}

/// Whatever the window shows otherwise than before.
std::string changes(StandInWindow& before, StandInWindow& after)
{
    std::string text;
    for (const std::string_view name : before.names()) {
        const auto& was = before.at(name);
        const auto& is = after.at(name);
        const std::string label = ", " + std::string(name);
        text += was.visible == is.visible ? "" : label + (is.visible ? " shown" : " hidden");
        text += was.enabled == is.enabled ? "" : label + (is.enabled ? " enabled" : " disabled");
        text += was.checked == is.checked ? "" : label + (is.checked ? " checked" : " unchecked");
        text += was.text == is.text ? "" : label + " |" + is.text + "|";
    }
    return text;
}

std::string clicked(std::string_view name)
{
    NotingRig untouched(heading::right, answer::no);
    NotingRig rig(heading::right, answer::no);
    for (NotingRig* const each : {&untouched, &rig}) {
        each->form.penMoved = 1; // Open does something only then
        each->dialogs.fileToOpen = each->dialogs.fileToSave = "";
        each->dialogs.picked = 200;
    }
    const std::string outcome = rig.after([&](Rig& user) { user.click(name); });
    untouched.tick(control::statusTimer);
    rig.tick(control::statusTimer);
    const Cursor& cursor = rig.window.cursor;
    return outcome + "cursor " + std::string(cursor.picture) + " " + std::to_string(cursor.hotX) + " " +
           std::to_string(cursor.hotY) + changes(untouched.window, rig.window) +
           (rig.form.wireColor == 200 ? ", wires 200" : "") + (rig.form.canvasBackColor == 200 ? ", canvas 200" : "") +
           (rig.help.timesShown > 0 ? ", help" : "") + (rig.about.timesShown > 0 ? ", about" : "") +
           (rig.output.timesShown > 0 ? ", output" : "") + "\n";
}

void addClicks(Record& record)
{
    const std::string nothingElse = clicked("");
    const Rig rig;
    for (const std::string_view name : rig.window.names()) {
        const std::string hinted = hint(name);
        std::string body = hinted.empty() ? "" : "hint |" + hinted + "|\n";
        body += clicked(name);
        if (body != nothingElse) {
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
