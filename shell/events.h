#pragma once

#include "canvas/form1.h"
#include "platform/event.h"

#include <deque>

namespace schemlet {

/// The event boundary: passes each event of any window to its handler. If a handler throws a RuntimeError, a message
/// box shows it. Events that arrive while a handler runs are queued, except timer ticks: on a slow machine, the keys
/// after the Enter that closes a dialog arrive before the dialog has returned.
class Events {
public:
    explicit Events(Form1& form) : m_form(form) {}

    void deliver(const Event& event);

private:
    void handle(const Event& event);
    void endStep(const Event& event);
    void dispatch(const Event& event);

    Form1& m_form;
    std::deque<Event> m_queue; ///< its first event is the one being handled
};

} // namespace schemlet
