#include "tests/record/record.h"

#include <algorithm>

namespace schemlet {

namespace {

constexpr std::array headings{heading::right, heading::left, heading::up, heading::down, 7};

std::string wayOf(int heading)
{
    const std::string_view name = headingName(heading);
    return name.empty() ? "that is none" : std::string(name);
}

/// Adds a section for all headings that have the same effect.
template <typename Body> void addByHeading(Record& record, const std::string& title, Body bodyFor)
{
    Record sections;
    for (const int code : headings) {
        const std::string body = bodyFor(code);
        const auto same = std::ranges::find(sections, body, &Section::body);
        if (same == sections.end()) {
            sections.push_back({title + ", heading " + wayOf(code), body});
        } else {
            same->title += ", " + wayOf(code);
        }
    }
    record.insert(record.end(), sections.begin(), sections.end());
}

/// The switches that turn off an item's question.
std::string silencers(const Item& asking)
{
    std::string names;
    for (const Item& silencer : itemsOf({"askc"})) {
        NotingRig rig(heading::right);
        rig.run(silencer.click());
        names += rig.after(asking.click()).starts_with("asks ") ? "" : " " + silencer.title + ",";
    }
    return names;
}

/// Places a component twice, the second time with all questions turned off.
std::string placedTwice(const std::string& script, int heading)
{
    NotingRig rig(heading);
    const std::string first = rig.after(script);
    rig.form.confirm.fill(0);
    return first + rig.after(script);
}

void addComponents(Record& record)
{
    std::vector<Item> items = itemsOf({"electricalcomponents", "electroniccomponets"});
    items.insert(items.begin(), {{"ground", "Ground"}, {"jumper", "Jumper"}});
    for (const Item& item : items) {
        NotingRig refusing(heading::right, "no");
        const std::string refused = refusing.after(item.click());
        if (refusing.window.visible(control::panel)) {
            continue; // its kinds follow below
        }
        addByHeading(record, item.title, [&](int heading) { return placedTwice(item.click(), heading); });
        if (refused.starts_with("asks ")) {
            record.push_back(
                {item.title + ", refused", refused + "switched off by" + silencers(item) + " nothing else\n"});
        }
    }
    for (const auto& source : {std::pair{"Current supply", "source A 4.70x"},
                               {"Voltage supply", "source V 4.70x"},
                               {"Positive battery", "source + 4.70x"},
                               {"Negative battery", "source - 4.70x"}}) {
        addByHeading(record, source.first, [&](int heading) { return placedTwice(source.second, heading); });
    }
}

void addArrowKeys(Record& record)
{
    for (const auto& [ahead, script, reply] : {std::tuple{"a wire ahead", "ahead 116", "no"},
                                               {"a wire ahead, jumper", "j; ahead 116", "yes"},
                                               {"a wire ahead, no jumper", "j; ahead 116", "no"},
                                               {"other ink ahead", "j; ahead 117", "no"},
                                               {"the edge ahead", "j", "no"},
                                               {"erase mode", "j; e; ahead 116", "yes"}}) {
        for (const std::string arrow : {"right", "left", "up", "down"}) {
            NotingRig rig(heading::right, reply);
            rig.run(script);
            record.push_back({"Arrow " + arrow + ", " + ahead, rig.after(arrow) + rig.after(arrow)});
        }
    }
}

std::string dragged(const char* tools, const std::string& held)
{
    NotingRig rig(heading::right);
    rig.run(tools);
    rig.changes.take();
    std::string body;
    for (const std::string& motion : {"press " + held + " 1000 1010", "move " + held + " 2000 1500",
                                      "move " + held + " 2050.5 1500", "release " + held + " 3000 2000"}) {
        body += rig.after(motion);
    }
    return body + rig.changes.take() + "up at " + placed(rig.form.mouseUpX, rig.form.mouseUpY) + "\n";
}

void addMouse(Record& record)
{
    for (const auto& [hand, tools] : {std::pair{"no tool", "hover"},
                                      {"line", "click linee"},
                                      {"rectangle", "click rectan"},
                                      {"pencil", "click pencil1"},
                                      {"eraser", "click eraser"},
                                      {"pencil and eraser", "click pencil1; click eraser"}}) {
        for (const auto& [held, button] :
             {std::pair{"left", "left button"}, {"right", "right"}, {"middle", "middle"}}) {
            record.push_back({std::string("Mouse, ") + hand + ", " + button, dragged(tools, held)});
        }
    }
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
            rig.form.penMoved = 1; // otherwise Open does nothing
            const std::string event = verb + std::string(name);
            const std::string facts = played(rig, event + "; tick statusTimer");
            body += facts.empty() ? "" : "> " + event + "\n" + facts;
        }
        if (!body.empty()) {
            record.push_back({"Click on " + std::string(name), body});
        }
    }
}

/// Adds the pictures in the toolbox and on the splash.
void addPictures(Record& record)
{
    const Rig program;
    const auto add = [&record](const std::string& title, void (*picture)(Surface&)) {
        Rig rig;
        picture(rig.surface);
        record.push_back({title, rig.ink.take()});
    };
    for (const std::string_view name : program.window.names()) {
        if (const auto picture = program.window.at(name).picture) {
            add("Toolbox, " + std::string(name), picture);
        }
    }
    add("Product picture", program.splash.at("Picture1").picture);
}

} // namespace

void recordClicks(Record& record)
{
    addMenus(record);
    addClicks(record);
}

void recordDrawing(Record& record)
{
    addComponents(record);
    addArrowKeys(record);
    addMouse(record);
    addPictures(record);
}

} // namespace schemlet
