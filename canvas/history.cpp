#include "canvas/history.h"

#include "canvas/form1.h"
#include "canvas/wire.h"
#include "platform/event.h"

#include <tuple>

namespace schemlet {

namespace {

constexpr std::size_t maxBytes = std::size_t{64} << 20; // of all steps

/// A change of one of these makes a step, even without ink.
auto values(const Drawing& drawing)
{
    return std::tie(drawing.canvasBackColor, drawing.resist, drawing.induc, drawing.capac, drawing.supplyVoltage,
                    drawing.supplyCurrent, drawing.batteryPositive, drawing.batteryNegative, drawing.diodeCount);
}

std::size_t textBytes(const Drawing& drawing)
{
    return drawing.resistValue.capacity() + drawing.inductValue.capacity() + drawing.capacValue.capacity();
}

} // namespace

void History::begin(Form1& form, int arrow)
{
    if (leftIsHeld()) {
        return;
    }
    m_event.arrow = arrow;
    m_event.restored = false;
    m_event.continues = arrow != 0 && arrow == m_streak.arrow;
    m_streak.arrow = m_event.continues ? arrow : 0;
    // A held key stays fast: its changes are taken when the streak ends. A jumper may end the streak at any key.
    m_event.deferred = m_event.continues && form.autoJumper == 0;
    if (!m_event.deferred) {
        finishStreak(form);
        capture(form, m_event.before);
    }
}

bool History::end(Form1& form)
{
    if (leftIsHeld() || m_event.restored) {
        return false;
    }
    m_streak.blinks = 0; // blinks while the event opened a dialog do not count
    if (m_event.deferred) {
        m_streak.arrow = m_event.arrow;
        m_streak.unfinished = true;
        return false;
    }
    const bool hop = hopped(m_event.before.drawing, form); // a jumper is a step by itself
    m_streak.arrow = hop ? 0 : m_event.arrow;
    if (m_event.continues && !hop) {
        m_streak.unfinished = true;
        return false;
    }
    InkChange ink = form.surface.takeChange();
    if (ink.empty() && !isStep(m_event.before, form)) {
        m_streak.arrow = 0;
        return false;
    }
    Step step{.name = {}, .before = m_event.before, .after = {}, .ink = std::move(ink)};
    capture(form, step.after);
    keep(std::move(step));
    return true;
}

bool History::leftIsHeld() const
{
    return (m_buttons & button::left) != 0;
}

void History::pause()
{
    if (++m_streak.blinks == 2) {
        m_streak.arrow = 0;
    }
}

std::string History::undo(Form1& form)
{
    if (m_buttons != 0 || m_done == 0) {
        return {};
    }
    Step& step = m_steps[--m_done];
    restore(form, m_done, step.before);
    return step.name;
}

std::string History::redo(Form1& form)
{
    if (m_buttons != 0 || m_done == m_steps.size()) {
        return {};
    }
    Step& step = m_steps[m_done++];
    restore(form, m_done - 1, step.after);
    return step.name;
}

std::string_view History::undoable() const
{
    return m_done > 0 ? std::string_view(m_steps[m_done - 1].name) : "";
}

std::string_view History::redoable() const
{
    return m_done < m_steps.size() ? std::string_view(m_steps[m_done].name) : "";
}

void History::capture(const Form1& form, Snapshot& snapshot)
{
    snapshot.drawing = form;
    snapshot.current = form.surface.current();
    snapshot.foreColor = form.surface.foreColor();
    snapshot.title = form;
    snapshot.modes = form;
    snapshot.drawWidth = form.surface.drawWidth();
    snapshot.newDrawings = form.newDrawings;
    snapshot.openedDrawings = form.openedDrawings;
}

/// Whether an event that changed no ink makes a step.
bool History::isStep(const Snapshot& before, const CanvasState& now)
{
    const bool otherDrawing = before.newDrawings != now.newDrawings || before.openedDrawings != now.openedDrawings;
    return values(before.drawing) != values(now) || (otherDrawing && before.title.title != now.title);
}

std::size_t History::bytes(const Step& step)
{
    return sizeof(step) + step.ink.bytes() + textBytes(step.before.drawing) + textBytes(step.after.drawing);
}

/// Adds the changes of the streak's last keys to its step.
void History::finishStreak(Form1& form)
{
    if (!std::exchange(m_streak.unfinished, false)) {
        return;
    }
    Step& step = m_steps.back();
    m_bytes -= bytes(step);
    step.ink.add(form.surface.takeChange());
    capture(form, step.after);
    m_bytes += bytes(step);
    limitMemory(m_steps.size() - 1);
}

void History::keep(Step step)
{
    for (; m_steps.size() > m_done; m_steps.pop_back()) {
        m_bytes -= bytes(m_steps.back());
    }
    m_bytes += bytes(step);
    m_steps.push_back(std::move(step));
    ++m_done;
    limitMemory(m_steps.size() - 1);
}

void History::restore(Form1& form, std::size_t index, const Snapshot& snapshot)
{
    Step& step = m_steps[index];
    m_event.restored = true;
    m_bytes -= bytes(step);
    form.surface.exchange(step.ink);
    m_bytes += bytes(step);
    static_cast<Drawing&>(form) = snapshot.drawing;
    form.surface.setCurrent(snapshot.current);
    form.surface.setForeColor(snapshot.foreColor);
    const bool isNew = step.before.newDrawings != step.after.newDrawings;
    if (isNew || step.before.openedDrawings != step.after.openedDrawings) {
        static_cast<Title&>(form) = snapshot.title;
    }
    if (isNew) {
        static_cast<Modes&>(form) = snapshot.modes;
        form.surface.setDrawWidth(snapshot.drawWidth);
    }
    form.savedMark = 0;
    limitMemory(index);
}

/// Forgets the oldest steps, and then the undone steps that redo would reach last, but not the given one.
void History::limitMemory(std::size_t index)
{
    while (m_bytes > maxBytes && m_steps.size() > 1) {
        if (index > 0) {
            m_bytes -= bytes(m_steps.front());
            m_steps.pop_front();
            --index;
            --m_done; // the oldest step is not undone: the given one comes after it
        } else {
            m_bytes -= bytes(m_steps.back());
            m_steps.pop_back();
        }
    }
}

} // namespace schemlet
