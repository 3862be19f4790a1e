// Drives the program without a toolkit, as a user without a plan and with no luck:  drive_core SEED EVENTS
// What breaks is told with the number of its event; the same seed with as many events gets there again.

#include "circuit/output_window.h"
#include "shell/confirmations.h"
#include "shell/events.h"
#include "tests/drive/chance.h"
#include "tests/support/stand_ins.h"

#include <cmath>
#include <iostream>
#include <malloc.h>
#include <map>
#include <set>
#include <stdexcept>
#include <tuple>

namespace schemlet {

namespace {

void demand(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}

class Drive {
public:
    explicit Drive(std::uint64_t seed) : m_chance(seed)
    {
        m_surface.recording = false;
        m_dialogs.meanwhile = [this] {
            if (const Event event = tick(); !event.name.empty()) {
                m_events.deliver(event);
            }
        };
        m_output.addToolButton(form4::control::print, "", Look::plain);
        form6::load(m_splash);
    }

    void step()
    {
        prepare();
        const bool splash = m_splash.timesUnloaded == 0;
        m_event = splash ? splashEvent() : event();
        const Pen before = m_form;
        m_events.deliver(m_event);
        if (splash && m_splash.timesUnloaded != 0) {
            for (Actor& actor : m_actors) {
                actor.names = actor.window.names();
            }
        } else if (!splash) {
            checkPen(before);
            checkSwitches();
            checkNumbers();
        }
    }

    [[nodiscard]] const Event& lastEvent() const { return m_event; }

private:
    struct Actor {
        std::string_view name;
        StandInWindow& window;
        std::vector<std::string_view> names; ///< of everything in it
    };

    /// What moved the pen: the event's kind, name and code and the heading before.
    using Cause = std::tuple<Event::Kind, std::string_view, int, int>;

    /// Sets what the event may meet. Of the windows' past nothing is kept.
    void prepare()
    {
        m_surface.underPoint = m_chance.oneIn(3) ? std::nullopt : std::optional(m_chance.color());
        m_window.printFault = m_output.printFault =
            m_chance.oneIn(2) ? std::optional(Fault::printerError) : std::nullopt;
        m_help.heights.erase(m_help.heights.begin(), m_help.heights.end() - (m_help.heights.empty() ? 0 : 1));
    }

    Event splashEvent()
    {
        return m_chance.oneIn(8) ? Event{.kind = Event::Kind::close, .window = form6::window.text()} : tick();
    }

    Event event()
    {
        switch (m_chance.below(100)) {
        case 0: return {.kind = Event::Kind::close, .window = m_chance.of(m_actors).name};
        case 1: return {.kind = Event::Kind::click, .name = control::Command3.text()};
        case 2: return {.kind = Event::Kind::click, .name = control::panel.text()};
        default: break;
        }
        switch (m_chance.below(10)) {
        case 0: return {.kind = Event::Kind::keyDown, .code = m_chance.below(256)};
        case 1:
        case 2: return {.kind = Event::Kind::keyDown, .code = key::left + m_chance.below(4)};
        case 3: return typed();
        case 4: return tick();
        case 5: return {.kind = Event::Kind::hover, .name = m_chance.of(m_actors.front().names)};
        case 6:
        case 7: return click();
        default: return mouse();
        }
    }

    Event typed()
    {
        const int any = m_chance.below(0x110000);
        return {.kind = Event::Kind::keyPress,
                .code = m_chance.oneIn(4) ? any : m_chance.of(std::string_view("RICJSBEricjsbe"))};
    }

    Event mouse()
    {
        constexpr std::array kinds{Event::Kind::mouseDown, Event::Kind::mouseMove, Event::Kind::mouseUp};
        const int buttons = m_chance.oneIn(3) ? m_chance.below(8) : button::left;
        return {.kind = m_chance.of(kinds), .code = buttons, .place = {m_chance.place(), m_chance.place()}};
    }

    /// The toolkit changes a control before it tells of the click.
    Event click()
    {
        const Actor& actor = m_chance.of(m_actors);
        const std::string_view clicked = m_chance.of(actor.names);
        actor.window.at(clicked).value = m_chance.below(2);
        m_window.at(control::Text11).text = m_chance.text();
        return {Event::Kind::click, actor.name, clicked};
    }

    /// One of the clocks that run.
    Event tick()
    {
        std::vector<Event> running;
        const auto add = [&](std::string_view name, const StandInWindow& window) {
            for (const auto& [timer, interval] : window.intervals) {
                if (interval != 0) {
                    running.push_back({Event::Kind::tick, name, timer});
                }
            }
        };
        add(form6::window.text(), m_splash);
        for (const Actor& actor : m_actors) {
            add(actor.name, actor.window);
        }
        return running.empty() ? Event{.kind = Event::Kind::tick} : m_chance.of(running);
    }

    /// The pen goes where the left button is pressed, back to its start on New, and else by the same whole twips for
    /// the same command and heading, or stays.
    void checkPen(const Pen& before)
    {
        demand(std::isfinite(m_form.x) && std::isfinite(m_form.y), "the pen is nowhere");
        if (m_event.kind == Event::Kind::mouseDown && m_event.code == button::left) {
            return demand(m_form.x == m_event.place.x && m_form.y == m_event.place.y, "the pen is not at the mouse");
        }
        const double dx = m_form.x - before.x;
        const double dy = m_form.y - before.y;
        if (dx == 0 && dy == 0) {
            return;
        }
        if (m_event.name == "new" || m_event.name == "New") {
            return demand(m_form.x == 1600 && m_form.y == 1500, "New leaves the pen elsewhere");
        }
        demand(m_event.kind == Event::Kind::keyDown || m_event.kind == Event::Kind::keyPress ||
                   m_event.kind == Event::Kind::click,
               "the pen moves by itself");
        const std::pair advance{std::lround(dx), std::lround(dy)};
        demand(std::abs(dx - static_cast<double>(advance.first)) < 1e-6 &&
                   std::abs(dy - static_cast<double>(advance.second)) < 1e-6,
               "the pen moves by parts of a twip");
        const bool arrow = m_event.kind == Event::Kind::keyDown;
        auto& known = m_advances[{m_event.kind, m_event.name, m_event.code, arrow ? 0 : before.heading}];
        known.insert(advance);
        const bool panel = m_event.name == control::Command3.text();
        // The arrow keys hop over a wire or not; a battery and up to two supplies are drawn at once or not.
        const std::size_t most = arrow ? 2 : panel ? 5 : 1;
        demand(known.size() <= most, "the pen moves by another way than before");
    }

    void checkSwitches()
    {
        for (std::size_t i = 0; i < confirmCount; ++i) {
            demand(m_form.confirm[i] == 0 || m_form.confirm[i] == 1, "a question is neither on nor off");
            demand(m_window.checked(confirmItems[i]) == (m_form.confirm[i] == 1), "a question's mark is wrong");
        }
        for (const int value : {m_form.lineTool, m_form.rectTool, m_form.pencilTool, m_form.eraseMode,
                                m_form.autoJumper, m_form.toolboxFollow, m_form.penMoved}) {
            demand(value == 0 || value == 1, "a switch is neither on nor off");
        }
        demand(m_form.lineTool + m_form.rectTool + m_form.pencilTool <= 1, "more than one tool is on");
        demand(m_surface.drawWidth() == (m_form.eraseMode == 1 ? 10 : 2), "the pen has the wrong width");
        demand(m_window.visible(control::Label27) == (m_form.eraseMode == 1), "the erase label is wrong");
        demand(m_window.visible(control::panel) == (m_window.visible(control::sup) || m_window.visible(control::bat)),
               "the panel does not follow its families");
        demand((m_form.statusDue == 1) == (m_window.intervals.at(std::string(control::statusTimer.text())) != 0),
               "the status bar waits for no clock");
    }

    void checkNumbers() const
    {
        demand((m_form.heading >= 1 && m_form.heading <= 4) || m_form.heading == 6 || m_form.heading == 7,
               "no such heading");
        demand(m_form.savedMark == 0 || m_form.savedMark == 100, "neither saved nor changed");
        demand(m_form.blinkCount >= 0 && m_form.blinkCount < 10000 && m_form.blinkCount % 25 == 0, "the blink is lost");
        const int help = m_help.height();
        demand(help == 0 || (help >= form2::collapsedHeight && help <= form2::openHeight),
               "the help window has a wrong height");
        for (const double number :
             {m_form.resist, m_form.induc, m_form.capac, m_form.supplyValue, m_form.supplyVoltage, m_form.supplyCurrent,
              m_form.batteryPositive, m_form.batteryNegative, m_form.resonanceDenominator, m_form.resonanceFrequency,
              m_form.qualityFactor, m_form.frequencyCopy, m_form.angularFrequency, m_form.frequencyCapac,
              m_form.capacitiveReactance}) {
            demand(std::isfinite(number), "a sum or a result is no number");
        }
    }

    Chance m_chance;
    RecordingSurface m_surface;
    StandInWindow m_window{formControls};
    RandomDialogs m_dialogs{m_chance};
    RandomPictures m_pictures{m_chance};
    StandInWindow m_help{helpControls};
    StandInWindow m_about{aboutControls};
    StandInWindow m_output{form4::control::captions, form4::control::values};
    StandInWindow m_splash{splashControls};
    Form1 m_form{m_surface, m_window, m_dialogs, m_pictures, m_help, m_about, m_output, m_splash};
    Events m_events{m_form};
    std::array<Actor, 4> m_actors{Actor{mainWindow.text(), m_window, {}}, Actor{form2::window.text(), m_help, {}},
                                  Actor{form3::window.text(), m_about, {}}, Actor{form4::window.text(), m_output, {}}};
    Event m_event{};
    std::map<Cause, std::set<std::pair<long, long>>> m_advances;
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
    std::size_t warm = 0;
    long event = 0;
    try {
        for (; event < events; ++event) {
            drive.step();
            warm = event == events / 2 ? mallinfo2().uordblks : warm;
        }
        constexpr std::size_t slack = 100'000; // typed texts have their lengths
        demand(mallinfo2().uordblks <= warm + slack, "memory grows");
    } catch (const std::exception& error) {
        const Event& last = drive.lastEvent();
        std::cerr << "seed " << words[1] << ", event " << event << ": " << error.what() << "\n  kind "
                  << static_cast<int>(last.kind) << " " << last.window << " " << last.name << " code " << last.code
                  << " at " << last.place.x << ", " << last.place.y << "\n";
        return 1;
    }
    return 0;
}
