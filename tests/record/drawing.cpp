#include "tests/record/noting_rig.h"
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

/// One section for each run of headings that mean the same.
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

/// The switches that keep an item from asking.
std::string silencers(Name asking)
{
    std::string names;
    for (const Item& silencer : itemsOf({"askc"})) {
        NotingRig rig(heading::right);
        rig.click(silencer.name);
        rig.click(asking);
        names += rig.dialogs.lastTitle.empty() ? " " + silencer.title + "," : "";
    }
    return names;
}

/// Twice in a row: the second time nothing is asked that can be switched off.
std::string placedTwice(Name item, int heading)
{
    const auto place = [&](Rig& rig) { rig.click(item); };
    NotingRig rig(heading);
    const std::string first = rig.after(place);
    rig.form.confirm.fill(0);
    return first + rig.after(place);
}

void addComponents(Record& record)
{
    std::vector<Item> items = itemsOf({"electricalcomponents", "electroniccomponets"});
    items.insert(items.begin(), {{"ground", "Ground"}, {"jumper", "Jumper"}});
    for (const Item& item : items) {
        NotingRig refused(heading::right, answer::no);
        const std::string outcome = refused.after([&](Rig& rig) { rig.click(item.name); });
        if (refused.window.visible(control::panel)) {
            continue; // its kinds are below
        }
        addByHeading(record, item.title, [&](int heading) { return placedTwice(item.name, heading); });
        if (!refused.dialogs.lastTitle.empty()) {
            record.push_back(
                {item.title + ", refused", outcome + "switched off by" + silencers(item.name) + " nothing else\n"});
        }
    }
}

void addSources(Record& record)
{
    for (const auto& source : {std::pair{"Current supply", "A 4.70x"},
                               {"Voltage supply", "V 4.70x"},
                               {"Positive battery", "+ 4.70x"},
                               {"Negative battery", "- 4.70x"}}) {
        addByHeading(record, source.first, [&](int heading) {
            const auto place = [&](Rig& rig) { rig.enter(source.second); };
            NotingRig rig(heading);
            const std::string first = rig.after(place);
            return first + rig.after(place);
        });
    }
}

struct Ahead {
    const char* title = "";
    int autoJumper = 0;
    std::optional<Color> color; ///< none: the canvas ends
    int reply = answer::no;
    int eraseMode = 0;
};

void addArrowKeys(Record& record)
{
    const Color wire = NotingRig(heading::right).form.wireColor;
    for (const Ahead& ahead : {Ahead{"a wire ahead", 0, wire}, Ahead{"a wire ahead, jumper", 1, wire, answer::yes},
                               Ahead{"a wire ahead, no jumper", 1, wire}, Ahead{"other ink ahead", 1, wire + 1},
                               Ahead{"the edge ahead", 1, {}}, Ahead{"erase mode", 1, wire, answer::yes, 1}}) {
        for (const auto& arrow :
             {std::pair{"Right", key::right}, {"Left", key::left}, {"Up", key::up}, {"Down", key::down}}) {
            NotingRig rig(heading::right, ahead.reply);
            rig.form.autoJumper = ahead.autoJumper;
            rig.form.eraseMode = ahead.eraseMode;
            rig.surface.underPoint = ahead.color;
            std::string body;
            for (int i = 0; i < 2; ++i) {
                body += rig.after([&](Rig& pressed) { pressed.press(arrow.second); });
                body += "heading " + wayOf(rig.form.heading) + ", looked at " + rig.surface.probedAt + "\n";
            }
            record.push_back({std::string(arrow.first) + " arrow, " + ahead.title, body});
        }
    }
}

std::string dragged(const std::vector<Name>& tools, int held)
{
    NotingRig rig(heading::right);
    for (const Name tool : tools) {
        rig.click(tool);
    }
    std::string body = rig.after([&](Rig& user) { user.mouseDown(held, 1000, 1010); });
    for (const float x : {2000.0F, 2050.5F}) {
        body += rig.after([&](Rig& user) { user.mouseMove(held, x, 1500); });
    }
    body += rig.after([&](Rig& user) { user.mouseUp(held, 3000, 2000); });
    const auto& outline = rig.window.at(control::Shape1);
    return body + "menu |" + rig.window.poppedUp + "|, eraser " +
           (outline.visible ? shortest(outline.left) + " " + shortest(outline.top) : "hidden") + ", up at " +
           shortest(rig.form.mouseUpX) + " " + shortest(rig.form.mouseUpY) + "\n";
}

void addMouse(Record& record)
{
    const std::pair<const char*, std::vector<Name>> hands[] = {
        {"no tool", {}},         {"line", {"linee"}},    {"rectangle", {"rectan"}},
        {"pencil", {"pencil1"}}, {"eraser", {"eraser"}}, {"pencil and eraser", {"pencil1", "eraser"}}};
    for (const auto& [title, tools] : hands) {
        for (const auto& [held, buttons] :
             {std::pair{button::left, "left button"}, {button::right, "right"}, {button::middle, "middle"}}) {
            record.push_back({std::string("Mouse, ") + title + ", " + buttons, dragged(tools, held)});
        }
    }
}

// The program's own pictures

std::string drawnBy(void (*picture)(Surface&))
{
    Rig rig;
    rig.surface.notesColors = true;
    picture(rig.surface);
    return rig.drawn();
}

void addPictures(Record& record)
{
    const Rig rig;
    for (const std::string_view name : rig.window.names()) {
        if (const auto picture = rig.window.at(name).picture) {
            record.push_back({"Toolbox, " + std::string(name), drawnBy(picture)});
        }
    }
    const Rig start(Rig::Start::atSplash);
    record.push_back({"Product picture", drawnBy(start.splash.at(form6::control::Picture1).picture)});
}

} // namespace

void recordDrawing(Record& record)
{
    addComponents(record);
    addSources(record);
    addArrowKeys(record);
    addMouse(record);
    addPictures(record);
}

} // namespace schemlet
