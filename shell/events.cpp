#include "shell/events.h"

#include "canvas/keyboard.h"
#include "canvas/mouse.h"
#include "circuit/supply_panel.h"
#include "platform/runtime_error.h"
#include "shell/commands.h"
#include "shell/files.h"
#include "shell/toolbox.h"
#include "shell/view.h"

namespace {

void tick(Form1& form, Name timer)
{
    if (timer == control::Timer2) {
        Timer2(form);
    } else if (timer == control::statusTimer) {
        showStatus(form);
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
    case Event::Kind::mouseDown: return mouseDown(form, event.code, event.x, event.y);
    case Event::Kind::mouseMove: return mouseMove(form, event.code, event.x, event.y);
    case Event::Kind::mouseUp: return mouseUp(form, event.code, event.x, event.y);
    case Event::Kind::click: return runCommand(form, event.window, event.name);
    case Event::Kind::hover: return hover(form, event.name);
    case Event::Kind::close: return exit_(form);
    case Event::Kind::tick: return tick(form, event.name);
    }
}

} // namespace

void deliver(Form1& form, const Event& event)
{
    try {
        dispatch(form, event);
    } catch (const RuntimeError& error) {
        form.dialogs.messageBox(error.what(), Box::okWarning, "Schemlet 2.0");
    }
    // Neither a tick nor a move changes what the status bar shows.
    const bool quiet =
        event.kind == Event::Kind::tick || event.kind == Event::Kind::mouseMove || event.kind == Event::Kind::hover;
    if (!quiet) {
        showStatusSoon(form);
    }
}
