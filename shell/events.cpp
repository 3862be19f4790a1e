#include "shell/events.h"

#include "canvas/keyboard.h"
#include "canvas/mouse.h"
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

void tick(Form1& form, Name window, Name timer)
{
    if (const Handler handler = findHandler(timers, window, timer)) {
        handler(form);
    }
}

void hideOutput(Form1& form)
{
    form.form4.hideWindow();
}

constexpr NamedHandler frames[] = {
    {mainWindow, {}, exit_},         {form2::window, {}, form2::Command1}, {form3::window, {}, form3::Command1},
    {form4::window, {}, hideOutput}, {form6::window, {}, form6::finish},
};

void close(Form1& form, Name window)
{
    if (const Handler handler = findHandler(frames, window, {})) {
        handler(form);
    }
}

void panelKey(Form1& form, Name control, int character)
{
    if (control == control::Text11 && character == character::enter) {
        Command3(form);
    } else if (control == control::panel && character == character::escape) {
        cancelPanel(form);
    }
}

void dispatch(Form1& form, const Event& event)
{
    switch (event.kind) {
    case Event::Kind::keyDown: return keyDown(form, event.code);
    case Event::Kind::keyPress:
        return event.name.empty() ? keyPress(form, event.code) : panelKey(form, event.name, event.code);
    case Event::Kind::mouseDown: return mouseDown(form, event.code, event.place);
    case Event::Kind::mouseMove: return mouseMove(form, event.code, event.place);
    case Event::Kind::mouseUp: return mouseUp(form, event.code, event.place);
    case Event::Kind::click: return runCommand(form, event.window, event.name);
    case Event::Kind::hover: return hover(form, event.name);
    case Event::Kind::tick: return tick(form, event.window, event.name);
    case Event::Kind::close: return close(form, event.window);
    }
}

void handle(Form1& form, const Event& event)
{
    try {
        dispatch(form, event);
    } catch (const RuntimeError& error) {
        tell(form, error);
    }
    if (event.kind != Event::Kind::tick) { // else the blinking marker would keep it busy
        showStatusSoon(form);
    }
}

} // namespace

void deliver(Form1& form, const Event& event)
{
    if (event.kind == Event::Kind::tick) {
        return handle(form, event); // the clock goes on while a box waits
    }
    form.waiting.push_back(event);
    if (form.waiting.size() > 1) {
        return;
    }
    while (!form.waiting.empty()) {
        handle(form, form.waiting.front());
        form.waiting.pop_front();
    }
}
