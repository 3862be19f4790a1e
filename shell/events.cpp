#include "shell/events.h"

#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "canvas/notice.h"
#include "canvas/pen_marker.h"
#include "circuit/output_window.h"
#include "circuit/supply_panel.h"
#include "platform/runtime_error.h"
#include "shell/about.h"
#include "shell/commands.h"
#include "shell/files.h"
#include "shell/help.h"
#include "shell/main_window.h"
#include "shell/splash.h"
#include "shell/status_bar.h"
#include "shell/toolbox.h"
#include "shell/undo.h"

namespace schemlet {

namespace {

constexpr NamedHandler timers[] = {
    {mainWindow, control::Timer1, Timer1},
    {mainWindow, control::Timer2, Timer2},
    {mainWindow, control::statusTimer, showStatus},
    {mainWindow, control::noticeTimer, endNotice},
    {form2::window, form2::control::Timer2, form2::Timer2},
    {form6::window, form6::control::Timer1, form6::Timer1},
    {form6::window, form6::control::Timer2, form6::Timer2},
};

void hideOutput(Form1& form)
{
    form.form4.hideWindow();
}

constexpr NamedHandler frames[] = {
    {mainWindow, {}, exit_},         {form2::window, {}, form2::Command1}, {form3::window, {}, form3::Command1},
    {form4::window, {}, hideOutput}, {form6::window, {}, form6::finish},
};

/// Whether an event may run a command. Timer ticks, mouse moves and releases do not.
bool isCommand(Event::Kind kind)
{
    using enum Event::Kind;
    return kind != tick && kind != mouseMove && kind != hover && kind != mouseUp;
}

/// The help window and the splash have a Timer2, too.
bool isBlink(const Event& event)
{
    return event.kind == Event::Kind::tick && event.window == mainWindow.text() && event.name == control::Timer2.text();
}

/// Whether an event may change the drawing or end a streak of an arrow key. Saving does neither.
bool mayChangeDrawing(const Event& event)
{
    using enum Event::Kind;
    const bool idleMove = event.kind == mouseMove && event.code == 0;
    return event.window == mainWindow.text() && event.kind != tick && event.kind != hover && !idleMove &&
           (event.kind != click || commandOf(event) != save);
}

} // namespace

void Events::deliver(const Event& event)
{
    if (event.kind == Event::Kind::tick) {
        return handle(event); // timers go on while a dialog is open
    }
    m_queue.push_back(event);
    if (m_queue.size() > 1) {
        return;
    }
    while (!m_queue.empty()) {
        handle(m_queue.front());
        m_queue.pop_front();
    }
}

void Events::handle(const Event& event)
{
    if (isBlink(event)) {
        m_form.history.pause();
    }
    if (!m_form.notice.empty() && isCommand(event.kind)) {
        forgetNotice(m_form); // it is about an earlier command
    }
    const bool mayChange = mayChangeDrawing(event);
    if (mayChange) {
        m_form.history.begin(m_form, event.kind == Event::Kind::keyDown ? event.code : 0);
    }
    try {
        dispatch(event);
    } catch (const RuntimeError& error) {
        showError(m_form, error);
    }
    if (mayChange) {
        endStep(event);
    }
    if (event.kind != Event::Kind::tick) { // otherwise the blinking marker would keep the timer running
        showStatusSoon(m_form);
    }
}

void Events::endStep(const Event& event)
{
    History& history = m_form.history;
    if (event.kind == Event::Kind::mouseDown) {
        history.press(event.code);
    } else if (event.kind == Event::Kind::mouseUp) {
        history.release(event.code);
    }
    if (history.end(m_form)) {
        history.name(stepName(m_form, event));
    }
}

void Events::dispatch(const Event& event)
{
    switch (event.kind) {
    case Event::Kind::keyDown: return keyDown(m_form, event.code);
    case Event::Kind::keyPress: return keyPress(m_form, event.code);
    case Event::Kind::mouseDown: return mouseDown(m_form, event.code, event.place);
    case Event::Kind::mouseMove: return mouseMove(m_form, event.code, event.place);
    case Event::Kind::mouseUp: return mouseUp(m_form, event.code, event.place);
    case Event::Kind::click: return runCommand(m_form, event.window, event.name);
    case Event::Kind::hover: return hover(m_form, event.name, event.place);
    case Event::Kind::tick: return runRow(m_form, timers, event.window, event.name);
    case Event::Kind::close: return runRow(m_form, frames, event.window, {});
    }
}

} // namespace schemlet
