#include "tests/support/stand_ins.h"

namespace schemlet {

namespace {

ink::Place pixel(Point point)
{
    return {point.x / twipsPerPixel, point.y / twipsPerPixel};
}

} // namespace

void Notes::change(const std::string& thing, const std::string& before, const std::string& now)
{
    const auto known = thing.empty() ? m_notes.end() : std::ranges::find(m_notes, thing, &Note::thing);
    if (known != m_notes.end()) {
        known->now = now;
    } else if (kept) {
        m_notes.push_back({thing, before, now});
    }
}

std::vector<std::string> Notes::takeLines()
{
    std::vector<std::string> lines;
    for (const auto& [thing, before, now] : std::exchange(m_notes, {})) {
        if (before != now) {
            lines.push_back(now);
        }
    }
    return lines;
}

std::string Notes::take()
{
    std::string text;
    for (const std::string& line : takeLines()) {
        text += line + "\n";
    }
    return text;
}

void RecordingSurface::note(const char* what, std::initializer_list<float> numbers, std::string_view text)
{
    if (!m_notes.kept) {
        return;
    }
    if (notedColor != m_foreColor) {
        notedColor = m_foreColor;
        m_notes.add("color " + std::to_string(m_foreColor));
    }
    std::string call = what;
    for (const float number : numbers) {
        call += " " + written(number);
    }
    m_notes.add(call + (m_drawWidth == 2 ? "" : ", width " + std::to_string(m_drawWidth)) + std::string(text));
}

void RecordingSurface::circle(Point centre, float radius)
{
    note("circle", {centre.x, centre.y, radius});
    m_inkChanges.mark(
        ink::circle(m_paper.image(), {m_foreColor, double(m_drawWidth)}, pixel(centre), radius / twipsPerPixel));
}

void RecordingSurface::arc(Point centre, float radius, float start, float end)
{
    note("arc", {centre.x, centre.y, radius, start, end});
    m_inkChanges.mark(ink::arc(m_paper.image(), {m_foreColor, double(m_drawWidth)}, pixel(centre),
                               radius / twipsPerPixel, start, end));
}

void RecordingSurface::setBackColor(Color color)
{
    note("back", {static_cast<float>(color)});
    m_backColor = color;
    std::ranges::fill(m_paper.pixels, color);
    m_inkChanges.mark({0, 0, m_paper.width, m_paper.height});
}

InkChange RecordingSurface::takeChange()
{
    return {.picture = m_inkChanges.take(m_paper.image(), m_backColor), .screen = {}};
}

void RecordingSurface::exchange(InkChange& change)
{
    if (!change.empty()) {
        m_notes.add("exchange");
    }
    ink::Patch reverse = ink::reverse(m_paper.image(), m_backColor, change.picture);
    m_backColor = change.picture.before.paper;
    m_inkChanges.put(m_paper.image(), m_backColor, change.picture);
    change.picture = std::move(reverse);
    change.picture.squares.reserve(patchRoom);
}

void RecordingSurface::draw(Point from, Point to)
{
    m_inkChanges.mark(ink::line(m_paper.image(), {m_foreColor, double(m_drawWidth)}, pixel(from), pixel(to)));
}

void RecordingSurface::stroke(const char* what, Point from, Point to)
{
    note(what, {from.x, from.y, to.x, to.y});
    draw(from, to);
    m_current = to;
}

void RecordingSurface::print(std::string_view text, bool endLine)
{
    note("print", {static_cast<float>(m_current.x), static_cast<float>(m_current.y)},
         " " + std::string(text) + (endLine ? "" : " ..."));
    draw(m_current, {m_current.x + 100, m_current.y + 195});
    m_current = endLine ? Point{0, m_current.y + 195} : Point{m_current.x + 100, m_current.y};
}

std::optional<Color> RecordingSurface::point(Point probed) const
{
    if (ahead) {
        if (m_notes.kept) {
            m_notes.add("looks at " + placed(probed.x, probed.y));
        }
        return ahead;
    }
    const ink::Place place = pixel(probed);
    if (place.x < 0 || place.y < 0 || place.x >= m_paper.width || place.y >= m_paper.height) {
        return {};
    }
    return m_paper.pixels[m_paper.index(static_cast<int>(place.x), static_cast<int>(place.y))];
}

std::optional<std::string> ScriptedDialogs::reply(Asked asked, const std::string& question)
{
    m_notes.add(question);
    constexpr std::string_view early = "meanwhile ";
    for (; !replies.empty() && replies.front().starts_with(early); replies.pop_front()) {
        meanwhile(std::string_view(replies.front()).substr(early.size()));
    }
    std::string text = "cancel";
    if (replyTo) {
        text = replyTo(asked);
    } else if (replies.empty()) {
        ADD_FAILURE() << "no reply: " << question;
    } else {
        text = replies.front();
        replies.pop_front();
    }
    return text == "cancel" ? std::nullopt : std::optional(text);
}

int ScriptedDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    constexpr std::array styles{" OK", " warning, OK", " question, Yes No", " question of the walk, Yes No",
                                " warning, Yes No Cancel"};
    const std::string question =
        "asks " + written(title) + std::string(prompt) + "|" + styles.at(static_cast<std::size_t>(style));
    if ((style == Box::okOnly || style == Box::okWarning) && !replyTo) {
        m_notes.add(question);
        return answer::no;
    }
    const std::string pressed = reply(Asked::box, question).value_or("cancel");
    return pressed == "yes"                                          ? answer::yes
           : pressed == "cancel" && style == Box::yesNoCancelWarning ? answer::cancel
                                                                     : answer::no;
}

std::optional<std::string> ScriptedDialogs::inputBox(std::string_view prompt, std::string_view title,
                                                     std::string_view preset)
{
    EXPECT_EQ(preset, title == " LABEL " ? "" : "10");
    return reply(Asked::text, "asks " + written(title) + std::string(prompt) + "| OK");
}

std::optional<Color> ScriptedDialogs::pickColor(std::string_view title, Color first)
{
    const auto picked = reply(Asked::color, "asks " + written(title) + " a color, first " + written(first));
    return picked ? std::optional(static_cast<Color>(std::stoul(*picked))) : std::nullopt;
}

std::optional<std::string> ScriptedDialogs::saveFile(std::string_view name, std::string_view extension,
                                                     std::string_view filter)
{
    return reply(Asked::file,
                 "asks for a file to save " + written(name) + std::string(extension) + "|" + std::string(filter));
}

bool StandInPictures::copyInk()
{
    m_notes.add("copies");
    return std::ranges::any_of(m_surface.pixels(), [](Color pixel) { return pixel != white; });
}

void StandInPictures::note(const char* what, std::string_view path, Fault fault)
{
    m_notes.add(what + std::string(path));
    if (path.starts_with("/broken/")) {
        throw RuntimeError(fault, "the folder is broken");
    }
}

StandInWindow::StandInWindow(Notes& notes, Name window, std::span<const Name> names, std::span<const Name> more)
    : m_notes(notes), m_prefix(window == mainWindow ? "" : std::string(window.text()) + " ")
{
    for (const auto& some : {names, more}) {
        for (const Name name : some) {
            m_controls[name.text()];
        }
    }
}

std::vector<std::string_view> StandInWindow::names() const
{
    std::vector<std::string_view> all;
    for (const auto& [name, control] : m_controls) {
        all.push_back(name);
    }
    return all;
}

void StandInWindow::setSwitch(Name name, bool Control::*aspect, bool on, const char* off, const char* onWord)
{
    if (std::exchange(at(name.text()).*aspect, on) != on && m_notes.kept) {
        const std::string what = m_prefix + std::string(name.text()) + " ";
        m_notes.change(what + off, what + (on ? off : onWord), what + (on ? onWord : off));
    }
}

void StandInWindow::drawPicture(Name name, void (*draw)(Surface&))
{
    at(name.text()).picture = draw;
    note(std::string(name.text()) + " drawn");
}

void StandInWindow::unload()
{
    note("window unloaded");
    intervals.clear();
}

void StandInWindow::setHeight(int twips)
{
    m_height = twips;
    note("height " + std::to_string(twips));
}

void StandInWindow::printForm()
{
    note("window printed");
    if (!hasPrinter) {
        throw RuntimeError(Fault::printerError, "Printer error");
    }
}

void StandInWindow::addMenuItem(int depth, const MenuItem& row)
{
    menuRows.emplace_back(depth, row);
    m_controls[row.name.text()].checked = row.look == Look::checked;
}

void StandInWindow::addShortcut(const Shortcut& shortcut)
{
    m_controls[shortcut.name.text()];
    toolRows += std::string(shortcut.keys) + (shortcut.repeats ? ", repeating: " : ": ") +
                std::string(shortcut.name.text()) + "\n";
}

void StandInWindow::addToolButton(Name key, std::string_view tip, Look look)
{
    m_controls[key.text()];
    toolRows +=
        "|" + std::string(key.text()) + "| " + std::string(tip) + (look == Look::plain ? "" : ", a switch") + "\n";
}

void StandInWindow::setCursor(const Cursor& pointer)
{
    const std::string next = "cursor " + std::string(pointer.picture) + " " + placed(pointer.hotX, pointer.hotY);
    m_notes.change("cursor", std::exchange(m_cursor, next), next);
}

void StandInWindow::popUp(Name menu, Point where)
{
    note("menu " + std::string(menu.text()) + " " + placed(where.x, where.y));
}

void StandInWindow::placeAwayFrom(Name name, Point where, Name other)
{
    set(name, &Control::awayFrom, placed(where.x, where.y) + " and " + std::string(other.text()), "away from ");
}

void StandInWindow::setInterval(Name timer, int milliseconds)
{
    const std::string what = m_prefix + std::string(timer.text()) + " every ";
    const int before = std::exchange(intervals[timer.text()], milliseconds);
    m_notes.change(what, what + written(before) + " ms", what + written(milliseconds) + " ms");
}

} // namespace schemlet
