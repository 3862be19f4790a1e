#include "tests/support/stand_ins.h"

#include "shell/main_window.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace {

template <typename... Values> std::string words(const Values&... values)
{
    std::ostringstream out;
    out.precision(10);
    const char* blank = "";
    ((out << std::exchange(blank, " ") << values), ...);
    return out.str();
}

} // namespace

template <typename... Values> void RecordingSurface::note(const Values&... call)
{
    if (!recording) {
        return;
    }
    ink.push_back(words(call...));
    if (!firstInkColor) {
        firstInkColor = foreColor;
    }
}

void RecordingSurface::line(float x1, float y1, float x2, float y2)
{
    note("line", x1, y1, x2, y2);
    m_current = {x2, y2};
}

void RecordingSurface::box(float x1, float y1, float x2, float y2)
{
    note("box", x1, y1, x2, y2);
    m_current = {x2, y2};
}

void RecordingSurface::circle(float x, float y, float radius)
{
    note("circle", x, y, radius);
}

void RecordingSurface::arc(float x, float y, float radius, float start, float end)
{
    note("arc", x, y, radius, start, end);
}

void RecordingSurface::print(std::string_view text, bool endLine)
{
    note("print", m_current.x, m_current.y, std::string(text) + (endLine ? "" : " ..."));
    m_current = endLine ? Point{0, m_current.y + 195} : Point{m_current.x + 100, m_current.y};
}

void RecordingSurface::clear()
{
    note("clear");
}

void RecordingSurface::setBackColor(Color color)
{
    note("back", color);
}

std::optional<Color> RecordingSurface::point(float x, float y) const
{
    probedAt = recording ? words(x, y) : "";
    return underPoint;
}

void RecordingSurface::setForeColor(Color color)
{
    foreColor = color;
}

ScriptedDialogs::~ScriptedDialogs()
{
    EXPECT_TRUE(m_expected.empty()) << "not asked: " << m_expected.front().first;
    EXPECT_TRUE(m_inputs.empty()) << "not asked: " << m_inputs.front().first;
}

int ScriptedDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    lastPrompt = prompt;
    lastStyle = style;
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected question: " << title;
        return answer::no;
    }
    const auto [expected, answer] = m_expected.front();
    m_expected.pop_front();
    EXPECT_EQ(title, expected);
    return answer;
}

std::string ScriptedDialogs::inputBox(std::string_view prompt, std::string_view title, std::string_view preset)
{
    lastPrompt = prompt;
    EXPECT_EQ(preset, "10");
    if (m_inputs.empty()) {
        ADD_FAILURE() << "unexpected question: " << title;
        return {};
    }
    const auto [expected, text] = m_inputs.front();
    m_inputs.pop_front();
    EXPECT_EQ(title, expected);
    return text;
}

std::string ScriptedDialogs::openFile()
{
    EXPECT_TRUE(fileToOpen) << "unexpected file dialog";
    return std::exchange(fileToOpen, {}).value_or("");
}

std::string ScriptedDialogs::saveFile(std::string_view extension, std::string_view filter)
{
    lastFilter = std::string(extension) + ", " + std::string(filter);
    EXPECT_TRUE(fileToSave) << "unexpected file dialog";
    std::string path = std::exchange(fileToSave, {}).value_or("");
    if (path.empty()) {
        throw RuntimeError(Fault::dialogCancelled, "");
    }
    return path;
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
            m_controls.emplace(name, Control{});
        }
    }
}

StandInWindow::Control& StandInWindow::at(Name name)
{
    const auto found = m_controls.find(name);
    if (found == m_controls.end()) {
        throw std::invalid_argument("no such control: " + std::string(name));
    }
    return found->second;
}

std::vector<Name> StandInWindow::names() const
{
    std::vector<Name> all;
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

void StandInWindow::addMenuItem(int /*depth*/, const MenuItem& item)
{
    m_controls[std::string(item.name)].checked = item.look == Look::checked;
}

Bench::Bench(Start start)
{
    if (start == Start::atSplash) {
        form6::load(splash);
    } else {
        openMainWindow(form);
    }
}

void Bench::choose(Name option)
{
    window.at(option).value = 1;
    click(option);
}

void Bench::confirm(std::string_view text)
{
    window.at(control::Text11).text = text;
    deliver(form, {Event::Kind::keyPress, mainWindow, control::Text11, character::enter});
}

void Bench::enter(char kind, const std::string& value)
{
    static const std::map<char, Name> sources{
        {'A', control::Option2}, {'V', control::Option3}, {'+', control::Option4}, {'-', control::Option5}};
    static const std::map<char, const char*> titles{
        {'R', " RESISTANCE "}, {'I', " INDUCTANCE "}, {'C', " CAPACITANCE "}};
    if (const auto source = sources.find(kind); source != sources.end()) {
        type(kind == 'A' || kind == 'V' ? 'S' : 'b');
        choose(source->second);
        confirm(value);
    } else {
        dialogs.expectInput(titles.at(kind), value);
        type(kind);
    }
}

std::string Bench::drawn()
{
    std::string lines;
    for (const std::string& line : std::exchange(surface.ink, {})) {
        lines += line + "\n";
    }
    return lines;
}

std::string Bench::pen() const
{
    return words(form.x, form.y);
}

std::string Bench::marker()
{
    const auto& picture = window.at(control::Picture1);
    return words(picture.left, picture.top);
}

std::string Bench::outcome()
{
    return drawn() + "pen " + pen() + ", marker " + marker();
}
