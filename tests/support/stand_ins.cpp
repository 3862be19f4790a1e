#include "tests/support/stand_ins.h"

#include "shell/main_window.h"

#include <charconv>
#include <utility>

namespace schemlet {

namespace {

template <typename Number> std::string written(Number number)
{
    std::array<char, 32> text{};
    return {text.begin(), std::to_chars(text.begin(), text.end(), number).ptr};
}

std::string place(double x, double y)
{
    return written(x) + " " + written(y);
}

} // namespace

std::string shortest(float number)
{
    return written(number);
}

std::string shortest(double number)
{
    return written(number);
}

void RecordingSurface::note(const char* what, std::initializer_list<float> numbers, std::string_view text)
{
    if (!recording) {
        return;
    }
    if (notesColors && m_notedColor != foreColor) {
        m_notedColor = foreColor;
        ink.push_back("color " + std::to_string(foreColor));
    }
    std::string call = what;
    for (const float number : numbers) {
        call += " " + shortest(number);
    }
    ink.push_back(call + std::string(text));
}

void RecordingSurface::stroke(const char* what, Point from, Point to)
{
    note(what, {from.x, from.y, to.x, to.y});
    m_current = to;
}

void RecordingSurface::arc(Point centre, float radius, float start, float end)
{
    note("arc", {centre.x, centre.y, radius, start, end});
}

void RecordingSurface::print(std::string_view text, bool endLine)
{
    note("print", {static_cast<float>(m_current.x), static_cast<float>(m_current.y)},
         " " + std::string(text) + (endLine ? "" : " ..."));
    m_current = endLine ? Point{0, m_current.y + 195} : Point{m_current.x + 100, m_current.y};
}

std::optional<Color> RecordingSurface::point(Point probed) const
{
    probedAt = recording ? place(probed.x, probed.y) : "";
    return underPoint;
}

ScriptedDialogs::Reply ScriptedDialogs::expected(std::string_view title)
{
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected question: " << title;
        return {};
    }
    const Expected next = m_expected.front();
    m_expected.pop_front();
    EXPECT_EQ(title, next.title);
    return next.reply;
}

ScriptedDialogs::Reply ScriptedDialogs::next(std::string_view prompt, std::string_view title)
{
    lastPrompt = prompt;
    lastTitle = title;
    Reply reply = always ? *always : expected(title);
    if (const auto happens = std::exchange(meanwhile, {})) {
        happens();
    }
    return reply;
}

int ScriptedDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    lastStyle = style;
    return next(prompt, title).answer;
}

std::optional<std::string> ScriptedDialogs::inputBox(std::string_view prompt, std::string_view title,
                                                     std::string_view preset)
{
    EXPECT_EQ(preset, "10");
    const Reply reply = next(prompt, title);
    return reply.text.empty() ? std::nullopt : std::optional(reply.text);
}

std::optional<std::string> ScriptedDialogs::choice(std::optional<std::string>& file)
{
    EXPECT_TRUE(file) << "unexpected file dialog";
    const std::string path = std::exchange(file, {}).value_or("");
    return path.empty() ? std::nullopt : std::optional(path);
}

std::optional<std::string> ScriptedDialogs::saveFile(std::string_view name, std::string_view extension,
                                                     std::string_view filter)
{
    lastName = name;
    lastFilter = std::string(extension) + ", " + std::string(filter);
    return choice(fileToSave);
}

void StandInPictures::note(const char* what, std::string_view path)
{
    notes += what + std::string(path) + "\n";
    if (const auto thrown = std::exchange(fault, {})) {
        throw RuntimeError(*thrown, "Invalid picture");
    }
}

StandInWindow::StandInWindow(std::span<const Name> names, std::span<const Name> more)
{
    for (const auto& some : {names, more}) {
        for (const Name name : some) {
            m_controls.emplace(name.text(), Control{});
        }
    }
}

std::vector<std::string_view> StandInWindow::names() const
{
    std::vector<std::string_view> all;
    for (const auto& [name, control] : m_controls) {
        all.emplace_back(name);
    }
    return all;
}

void StandInWindow::unload()
{
    ++timesUnloaded;
    intervals.clear();
}

void StandInWindow::printForm()
{
    ++timesPrinted;
    if (printFault) {
        throw RuntimeError(*printFault, "Printer error");
    }
}

void StandInWindow::popUp(Name menu, Point where)
{
    poppedUp = std::string(menu.text()) + " " + place(where.x, where.y);
}

void StandInWindow::addMenuItem(int depth, const MenuItem& row)
{
    menuRows.emplace_back(depth, row);
    m_controls[std::string(row.name.text())].checked = row.look == Look::checked;
}

Rig::Rig(Start start)
{
    if (start == Start::atSplash) {
        form6::load(splash);
    } else {
        openMainWindow(form);
    }
}

void Rig::choose(Name option)
{
    window.at(option).value = 1;
    click(option);
}

void Rig::confirm(std::string_view text)
{
    window.at(control::Text11).text = text;
    click(control::Command3);
}

void Rig::enter(const std::string& component)
{
    static const std::map<char, const char*> boxes{
        {'R', " RESISTANCE "}, {'I', " INDUCTANCE "}, {'C', " CAPACITANCE "}};
    static const std::map<char, Name> sources{
        {'A', control::Option2}, {'V', control::Option3}, {'+', control::Option4}, {'-', control::Option5}};
    const char kind = component.front();
    if (const auto box = boxes.find(kind); box != boxes.end()) {
        dialogs.expectInput(box->second, component.substr(1));
        return type(kind);
    }
    type(kind == 'A' || kind == 'V' ? 'S' : 'b');
    choose(sources.at(kind));
    confirm(component.substr(1));
}

std::string Rig::drawn()
{
    std::string lines;
    for (const std::string& line : std::exchange(surface.ink, {})) {
        lines += line + "\n";
    }
    return lines;
}

std::string Rig::pen() const
{
    return place(form.x, form.y);
}

std::string Rig::marker()
{
    const auto& picture = window.at(control::Picture1);
    return place(picture.left, picture.top);
}

std::string Rig::outcome()
{
    return drawn() + "pen " + pen() + ", marker " + marker();
}

} // namespace schemlet
