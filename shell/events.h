#pragma once

#include "canvas/form1.h"
#include "platform/event.h"

#include <deque>

namespace schemlet {

/// The one way in: hands each event of any window to its handler. A RuntimeError that a handler throws is told to the
/// user in a message box. Events that arrive while a handler runs are queued, except timer ticks: on a slow machine the
/// keys behind a box's Enter come before the box has returned its answer.
class Events {
public:
    explicit Events(Form1& form) : m_form(form) {}

    void deliver(const Event& event);

private:
    void handle(const Event& event);
    void endStep(const Event& event);
    void dispatch(const Event& event);

    Form1& m_form;
    std::deque<Event> m_queue; ///< the event that is being handled comes first
};

} // namespace schemlet
