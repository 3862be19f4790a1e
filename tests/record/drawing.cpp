#include "tests/record/record.h"
#include "tests/support/stand_ins.h"

#include <algorithm>
#include <utility>

namespace {

// What people call things

constexpr std::array headings{heading::right, heading::left, heading::up, heading::down, 7};

std::string headingName(int code)
{
    constexpr std::array names{"right", "left", "up", "down"};
    return code <= heading::down ? names[static_cast<std::size_t>(code - 1)] : "that is none";
}

std::string plain(std::string_view caption)
{
    std::string text(caption);
    std::erase(text, '&');
    const auto first = text.find_first_not_of(' ');
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// An item of the menus that runs a command.
struct Item {
    Name name;
    std::string title; ///< the captions on the way there
};

/// All of them below these menus of the bar.
std::vector<Item> itemsOf(std::initializer_list<Name> menus)
{
    const Bench bench;
    const auto& rows = bench.window.menuRows;
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

// What is noted

/// Notes questions among the ink and answers them all alike; has a colour of its own for each family, for wires, for
/// the canvas and for what is drawn before a colour is chosen.
struct NotingBench : Bench {
    static constexpr Color colorInHand = 100;

    explicit NotingBench(int heading, int reply = answer::yes)
    {
        static const std::vector<Item> pickers = itemsOf({"cc", "fc"});
        dialogs.picked = colorInHand;
        for (const Item& item : pickers) {
            ++dialogs.picked;
            click(item.name);
        }
        drawn();
        dialogs.always = {reply, reply == answer::yes ? "4.70" : ""};
        surface.notesColors = true;
        surface.setForeColor(colorInHand);
        window.setLeft(control::Picture1, 77);
        form.heading = heading;
    }

    /// What happens while somebody does this, and how it leaves the canvas.
    template <typename Action> std::string after(Action act)
    {
        dialogs.lastTitle = "";
        dialogs.meanwhile = [this] { noteQuestion(); };
        act(*this);
        dialogs.meanwhile = nullptr;
        return outcome() + ", text " + shortest(surface.current().x) + " " + shortest(surface.current().y) +
               ", color " + std::to_string(surface.foreColor) + totals() + "\n";
    }

    std::string totals()
    {
        constexpr std::pair<const char*, double CanvasState::*> sums[] = {
            {", resistance ", &CanvasState::resist},
            {", inductance ", &CanvasState::induc},
            {", 1/capacitance ", &CanvasState::capac},
            {", voltage ", &CanvasState::supplyVoltage},
            {", current ", &CanvasState::supplyCurrent},
            {", positive battery ", &CanvasState::batteryPositive},
            {", negative battery ", &CanvasState::batteryNegative}};
        std::string text;
        for (const auto& [name, sum] : sums) {
            text += form.*sum != 0 ? name + shortest(form.*sum) : "";
        }
        return form.diodeCount != 0 ? text + ", diodes " + std::to_string(form.diodeCount) : text;
    }

    void noteQuestion()
    {
        constexpr std::array styles{"OK", "warning, OK", "question, Yes No", "warning, Yes No Cancel"};
        const auto style = static_cast<std::size_t>(std::exchange(dialogs.lastStyle, Box::okOnly));
        surface.ink.push_back("asks |" + dialogs.lastTitle + "|" + dialogs.lastPrompt + "| " + styles.at(style));
    }
};

/// One section for each run of headings that mean the same.
template <typename Body> void addByHeading(Record& record, const std::string& title, Body bodyFor)
{
    Record sections;
    for (const int code : headings) {
        const std::string body = bodyFor(code);
        const auto same = std::ranges::find(sections, body, &Section::body);
        if (same == sections.end()) {
            sections.push_back({title + ", heading " + headingName(code), body});
        } else {
            same->title += ", " + headingName(code);
        }
    }
    record.insert(record.end(), sections.begin(), sections.end());
}

// What is drawn

void addMenus(Record& record)
{
    constexpr std::array looks{"", " off", " on", " hidden"};
    const Bench bench;
    std::string rows;
    for (const auto& [depth, item] : bench.window.menuRows) {
        rows += std::string(static_cast<std::size_t>(depth) * 4, ' ') + "|" + std::string(item.caption) + "|" +
                std::string(item.shortcut) + "| " + std::string(item.name) +
                looks.at(static_cast<std::size_t>(item.look)) + "\n";
    }
    record.push_back({"Menus", rows});
    std::string colors;
    for (Color color = NotingBench::colorInHand; const Item& item : itemsOf({"cc", "fc"})) {
        colors += std::to_string(++color) + " " + item.title + "\n";
    }
    record.push_back({"Colors in this record", colors + "100 what was in hand before\n"});
}

/// The switches that keep an item from asking.
std::string silencers(Name asking)
{
    std::string names;
    for (const Item& silencer : itemsOf({"askc"})) {
        NotingBench bench(heading::right);
        bench.click(silencer.name);
        bench.click(asking);
        names += bench.dialogs.lastTitle.empty() ? " " + silencer.title + "," : "";
    }
    return names;
}

/// Twice in a row: the second time nothing is asked that can be switched off.
std::string placedTwice(Name item, int heading)
{
    const auto place = [&](Bench& bench) { bench.click(item); };
    NotingBench bench(heading);
    const std::string first = bench.after(place);
    bench.form.confirm.fill(0);
    return first + bench.after(place);
}

void addComponents(Record& record)
{
    std::vector<Item> items = itemsOf({"electricalcomponents", "electroniccomponets"});
    items.insert(items.begin(), {{"ground", "Ground"}, {"jumper", "Jumper"}});
    for (const Item& item : items) {
        NotingBench refused(heading::right, answer::no);
        const std::string outcome = refused.after([&](Bench& bench) { bench.click(item.name); });
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
    for (const auto& [title, entered] : {std::pair{"Current supply", "A 4.70x"},
                                         {"Voltage supply", "V 4.70x"},
                                         {"Positive battery", "+ 4.70x"},
                                         {"Negative battery", "- 4.70x"}}) {
        addByHeading(record, title, [&](int heading) {
            const auto place = [&](Bench& bench) { bench.enter(entered); };
            NotingBench bench(heading);
            const std::string first = bench.after(place);
            return first + bench.after(place);
        });
    }
}

struct Ahead {
    const char* title;
    int autoJumper;
    std::optional<Color> color; ///< none: the canvas ends
    int reply = answer::no;
    int eraseMode = 0;
};

void addArrowKeys(Record& record)
{
    const Color wire = NotingBench(heading::right).form.wireColor;
    for (const Ahead& ahead : {Ahead{"a wire ahead", 0, wire}, Ahead{"a wire ahead, jumper", 1, wire, answer::yes},
                               Ahead{"a wire ahead, no jumper", 1, wire}, Ahead{"other ink ahead", 1, wire + 1},
                               Ahead{"the edge ahead", 1, {}}, Ahead{"erase mode", 1, wire, answer::yes, 1}}) {
        for (const auto& [name, code] :
             {std::pair{"Right", key::right}, {"Left", key::left}, {"Up", key::up}, {"Down", key::down}}) {
            NotingBench bench(heading::right, ahead.reply);
            bench.form.autoJumper = ahead.autoJumper;
            bench.form.eraseMode = ahead.eraseMode;
            bench.surface.underPoint = ahead.color;
            std::string body;
            for (int i = 0; i < 2; ++i) {
                body += bench.after([&](Bench& pressed) { pressed.press(code); });
                body += "heading " + headingName(bench.form.heading) + ", looked at " + bench.surface.probedAt + "\n";
            }
            record.push_back({std::string(name) + " arrow, " + ahead.title, body});
        }
    }
}

std::string dragged(const std::vector<Name>& tools, int held)
{
    NotingBench bench(heading::right);
    for (const Name tool : tools) {
        bench.click(tool);
    }
    std::string body = bench.after([&](Bench& user) { user.mouseDown(held, 1000, 1010); });
    for (const float x : {2000.0F, 2050.5F}) {
        body += bench.after([&](Bench& user) { user.mouseMove(held, x, 1500); });
    }
    body += bench.after([&](Bench& user) { user.mouseUp(held, 3000, 2000); });
    const auto& outline = bench.window.at(control::Shape1);
    return body + "menu |" + bench.window.poppedUp + "|, eraser " +
           (outline.visible ? shortest(outline.left) + " " + shortest(outline.top) : "hidden") + ", up at " +
           shortest(bench.form.mouseUpX) + " " + shortest(bench.form.mouseUpY) + "\n";
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
    Bench bench;
    bench.surface.notesColors = true;
    picture(bench.surface);
    return bench.drawn();
}

void addPictures(Record& record)
{
    Bench bench;
    std::string hints;
    for (const Name name : bench.window.names()) {
        bench.window.setText(control::sb, "");
        bench.hover(name);
        const std::string& hint = bench.window.at(control::sb).text;
        hints += hint.empty() ? "" : std::string(name) + " |" + hint + "|\n";
    }
    record.push_back({"Hints", hints});
    for (const Name name : bench.window.names()) {
        if (const auto picture = bench.window.at(name).picture) {
            NotingBench clicked(heading::right, answer::no);
            record.push_back({"Toolbox, " + std::string(name),
                              drawnBy(picture) + clicked.after([&](Bench& user) { user.click(name); })});
        }
    }
    Bench start(Bench::Start::atSplash);
    record.push_back({"Product picture", drawnBy(start.splash.at(form6::control::Picture1).picture)});
}

} // namespace

void recordDrawing(Record& record)
{
    addMenus(record);
    addComponents(record);
    addSources(record);
    addArrowKeys(record);
    addMouse(record);
    addPictures(record);
}
