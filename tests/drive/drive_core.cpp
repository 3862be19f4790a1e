// Sends random events to the program, without a toolkit:  drive_core SEED EVENTS
// A failure names its event. The same seed with as many events fails again.

#include "circuit/output_window.h"
#include "shell/confirmations.h"
#include "tests/drive/chance.h"
#include "tests/support/rig.h"

#include <cmath>
#include <iostream>
#include <malloc.h>
#include <stdexcept>

namespace schemlet {

namespace {

void demand(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}

class Drive : Rig {
public:
    explicit Drive(std::uint64_t seed) : Rig(Start::atSplash), m_chance(seed)
    {
        ink.kept = changes.kept = false;
        dialogs.replyTo = [this](Asked asked) {
            if (const Event event = tick(); !event.name.empty()) {
                events.deliver(event); // while the box is open
            }
            return reply(asked);
        };
        output.addToolButton(form4::control::print, "", Look::plain);
    }

    void step()
    {
        surface.ahead = m_chance.oneIn(3) ? std::nullopt : std::optional(m_chance.color());
        window.hasPrinter = output.hasPrinter = m_chance.oneIn(2);
        const bool atSplash = !splash.intervals.empty();
        const Event closing{.kind = Event::Kind::close, .window = form6::window.text()};
        m_event = !atSplash ? event() : m_chance.oneIn(8) ? closing : tick();
        deliver(m_event);
        if (!atSplash) {
            checkPen();
            checkSwitches();
            checkNumbers();
        }
    }

    /// Undoes some steps and redoes them. After each of them, drawing and state are as they were after some event.
    void undoAndRedo(long most)
    {
        for (const int held : {button::left, button::middle, button::right}) { // which would keep a step open
            deliver({.kind = Event::Kind::mouseUp, .code = held});
        }
        const auto walk = [this](Name command, long steps) {
            long done = 0;
            const auto left = [&] {
                return command == control::undo ? form.history.undoable() : form.history.redoable();
            };
            for (auto place = m_seen.rbegin(); done < steps && !left().empty(); ++done) {
                events.deliver({.kind = Event::Kind::click, .name = command.text()});
                // Undo passes the events' states in their order.
                place = std::find(command == control::undo ? place : m_seen.rbegin(), m_seen.rend(), digest());
                demand(place != m_seen.rend(), "undo or redo leads to a state that never was");
            }
            return done;
        };
        walk(control::redo, walk(control::undo, most));
        m_seen.push_back(digest());
    }

    [[nodiscard]] const Event& lastEvent() const { return m_event; }

private:
    void deliver(const Event& event)
    {
        events.deliver(event);
        m_seen.push_back(digest());
    }

    /// A number for the state that undo restores.
    [[nodiscard]] std::size_t digest() const
    {
        std::size_t sum = 0;
        const auto add = [&sum](const auto& value) {
            sum = sum * 31 + std::hash<std::decay_t<decltype(value)>>()(value);
        };
        const auto& pixels = surface.pixels();
        add(std::string_view(reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof(pixels.front())));
        for (const auto& [name, number] : sumsAndResults) {
            add(form.*number);
        }
        const Point nextText = surface.current();
        for (const double place : {form.x, form.y, form.walkX, form.walkY, form.markerLeft, form.markerTop,
                                   double(nextText.x), double(nextText.y)}) {
            add(place);
        }
        for (const auto number : {Color(form.heading), Color(form.penMoved), Color(form.diodeCount),
                                  form.canvasBackColor, form.paperColor, form.toolboxColor, surface.foreColor()}) {
            add(number);
        }
        for (const auto& text : {form.resistValue, form.inductValue, form.capacValue}) {
            add(text);
        }
        for (const Name value : form4::control::values) {
            add(output.at(value.text()).text);
        }
        return sum;
    }

    std::string reply(Asked asked)
    {
        if (m_chance.oneIn(3)) {
            return "cancel";
        }
        switch (asked) {
        case Asked::box: return m_chance.of(std::array{"yes", "no"});
        case Asked::text: return m_chance.text();
        case Asked::color: return written(m_chance.color());
        default: return m_chance.path();
        }
    }

    Event event()
    {
        switch (m_chance.below(100)) {
        case 0: return {.kind = Event::Kind::close, .window = m_chance.of(m_windows).first};
        case 1: return {.kind = Event::Kind::click, .name = control::Command3.text()};
        case 2: return {.kind = Event::Kind::click, .name = control::panel.text()};
        case 3: return {.kind = Event::Kind::keyPress, .code = m_chance.below(0x110000)};
        default: break;
        }
        switch (m_chance.below(10)) {
        case 0: return {.kind = Event::Kind::keyDown, .code = m_chance.below(256)};
        case 1:
        case 2: return {.kind = Event::Kind::keyDown, .code = key::left + m_chance.below(4)};
        case 3: return {.kind = Event::Kind::keyPress, .code = m_chance.of(std::string_view("RICJSBEricjsbe"))};
        case 4: return tick();
        case 5: return {.kind = Event::Kind::hover, .name = m_chance.of(window.names())};
        case 6:
        case 7: return click();
        default: return mouse();
        }
    }

    Event mouse()
    {
        constexpr std::array kinds{Event::Kind::mouseDown, Event::Kind::mouseMove, Event::Kind::mouseUp};
        const int buttons = m_chance.oneIn(3) ? m_chance.below(8) : button::left;
        return {.kind = m_chance.of(kinds), .code = buttons, .place = {m_chance.place(), m_chance.place()}};
    }

    /// The toolkit changes a control before it reports the click.
    Event click()
    {
        const auto& [name, clicked] = m_chance.of(m_windows);
        const std::string_view control = m_chance.of(clicked.names());
        clicked.at(control).value = m_chance.below(2);
        window.at("Text11").text = m_chance.text();
        return {Event::Kind::click, name, control};
    }

    /// A tick of one of the timers that run.
    Event tick()
    {
        std::vector<Event> running;
        const auto add = [&running](std::string_view name, const StandInWindow& ticking) {
            for (const auto& [timer, interval] : ticking.intervals) {
                if (interval != 0) {
                    running.push_back({Event::Kind::tick, name, timer});
                }
            }
        };
        add(form6::window.text(), splash);
        for (const auto& [name, each] : m_windows) {
            add(name, each);
        }
        return running.empty() ? Event{.kind = Event::Kind::tick} : m_chance.of(running);
    }

    void checkPen()
    {
        demand(std::isfinite(form.x) && std::isfinite(form.y), "the pen is nowhere");
        if (m_event.kind == Event::Kind::mouseDown && m_event.code == button::left) {
            demand(form.x == m_event.place.x && form.y == m_event.place.y, "the pen is not at the mouse");
        }
    }

    void checkSwitches()
    {
        for (std::size_t i = 0; i < confirmCount; ++i) {
            demand(form.confirm[i] == 0 || form.confirm[i] == 1, "a question is neither on nor off");
            demand(window.checked(confirmItems[i]) == (form.confirm[i] == 1), "a question's mark is wrong");
        }
        for (const int value : {form.lineTool, form.rectTool, form.pencilTool, form.eraseMode, form.autoJumper,
                                form.toolboxFollow, form.penMoved}) {
            demand(value == 0 || value == 1, "a switch is neither on nor off");
        }
        demand(form.lineTool + form.rectTool + form.pencilTool <= 1, "more than one tool is on");
        demand(surface.drawWidth() == (form.eraseMode == 1 ? 10 : 2), "the pen has the wrong width");
        demand(window.visible(control::Label27) == (form.eraseMode == 1), "the erase label is wrong");
        demand(window.visible(control::panel) == (window.visible(control::sup) || window.visible(control::bat)),
               "the panel does not follow its families");
        demand((form.statusDue == 1) == (window.intervals.at("statusTimer") != 0), "no timer updates the status bar");
    }

    void checkNumbers() const
    {
        demand((form.heading >= 1 && form.heading <= 4) || form.heading == 6 || form.heading == 7, "no such heading");
        demand(form.savedMark == 0 || form.savedMark == 100, "neither saved nor changed");
        demand(form.blinkCount >= 0 && form.blinkCount < 10000 && form.blinkCount % 25 == 0, "the blink is lost");
        const int height = help.height();
        demand(height == 0 || (height >= form2::collapsedHeight && height <= form2::openHeight),
               "the help window has a wrong height");
        for (const auto& [name, number] : sumsAndResults) {
            demand(std::isfinite(form.*number), "a sum or a result is no number");
        }
    }

    Chance m_chance;
    const std::array<std::pair<std::string_view, StandInWindow&>, 4> m_windows{{{mainWindow.text(), window},
                                                                                {form2::window.text(), help},
                                                                                {form3::window.text(), about},
                                                                                {form4::window.text(), output}}};
    Event m_event{};
    std::vector<std::size_t> m_seen; ///< the digests after each event
};

} // namespace

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    const std::vector<std::string> words(argv, argv + argc);
    if (words.size() != 3) {
        std::cerr << "drive_core SEED EVENTS\n";
        return 2;
    }
    Drive drive(std::stoull(words[1]));
    const long events = std::stol(words[2]);
    long event = 0;
    try {
        for (; event < events; ++event) {
            drive.step();
            if (event % 10'000 == 9'999) {
                drive.undoAndRedo(event % 1'000'000 == 999'999 ? events : 300);
            }
        }
        constexpr std::size_t most = 100 << 20; // bytes, mostly for the history
        demand(mallinfo2().uordblks <= most, "memory grows");
    } catch (const std::exception& error) {
        const Event& last = drive.lastEvent();
        std::cerr << "seed " << words[1] << ", event " << event << ": " << error.what() << "\n  kind "
                  << static_cast<int>(last.kind) << " " << last.window << " " << last.name << " code " << last.code
                  << " at " << last.place.x << ", " << last.place.y << "\n";
        return 1;
    }
    return 0;
}
