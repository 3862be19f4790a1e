#include "canvas/history.h"

#include "canvas/form1.h"
#include "canvas/keyboard.h"
#include "platform/event.h"

#include <cmath>
#include <tuple>

namespace schemlet {

namespace {

constexpr std::size_t memory = std::size_t{64} << 20; // bytes, for all steps together

/// What makes a step, beside ink and paper.
auto values(const Drawing& drawing)
{
    return std::tie(drawing.canvasBackColor, drawing.resist, drawing.induc, drawing.capac, drawing.supplyVoltage,
                    drawing.supplyCurrent, drawing.batteryPositive, drawing.batteryNegative, drawing.diodeCount);
}

std::size_t texts(const Drawing& drawing)
{
    return drawing.resistValue.capacity() + drawing.inductValue.capacity() + drawing.capacValue.capacity();
}

} // namespace

void History::begin(Form1& form, int arrow)
{
    if (leftIsHeld()) {
        return;
    }
    m_arrow = arrow;
    m_restored = false;
    m_goesOn = arrow != 0 && arrow == m_run;
    m_run = m_goesOn ? arrow : 0;
    // Only a jumper could end the run within this key. Without jumpers it is enough to look when the run has ended.
    m_unseen = m_goesOn && form.autoJumper == 0;
    if (!m_unseen) {
        finishRun(form);
        look(form, m_before);
    }
}

bool History::end(Form1& form)
{
    if (leftIsHeld() || m_restored) {
        return false;
    }
    m_blinks = 0; // those that came while a box was open too
    if (m_unseen) {
        m_run = m_arrow;
        m_grew = true;
        return false;
    }
    // An arrow key that lays more than its own step of wire went on behind a jumper, and that is a step by itself.
    const bool hop = std::hypot(form.x - m_before.drawing.x, form.y - m_before.drawing.y) > stepLength;
    m_run = hop ? 0 : m_arrow;
    if (m_goesOn && !hop) {
        m_grew = true;
        return false;
    }
    InkChange ink = form.surface.takeChange();
    if (ink.empty() && !isStep(m_before, form)) {
        m_run = 0;
        return false;
    }
    Step step{.name = {}, .before = m_before, .after = {}, .ink = std::move(ink)};
    look(form, step.after);
    keep(std::move(step));
    return true;
}

bool History::leftIsHeld() const
{
    return (m_buttons & button::left) != 0;
}

void History::pause()
{
    if (++m_blinks == 2) {
        m_run = 0;
    }
}

std::string History::undo(Form1& form)
{
    if (m_buttons != 0 || m_done == 0) {
        return {};
    }
    std::string name = m_steps[--m_done].name; // restoring may forget the step
    restore(form, m_steps[m_done], m_steps[m_done].before);
    return name;
}

std::string History::redo(Form1& form)
{
    if (m_buttons != 0 || m_done == m_steps.size()) {
        return {};
    }
    std::string name = m_steps[m_done].name;
    ++m_done;
    restore(form, m_steps[m_done - 1], m_steps[m_done - 1].after);
    return name;
}

std::string_view History::undoable() const
{
    return m_done > 0 ? std::string_view(m_steps[m_done - 1].name) : "";
}

std::string_view History::redoable() const
{
    return m_done < m_steps.size() ? std::string_view(m_steps[m_done].name) : "";
}

void History::look(const Form1& form, Moment& moment)
{
    moment.drawing = form;
    moment.current = form.surface.current();
    moment.foreColor = form.surface.foreColor();
    moment.title = form;
    moment.modes = form;
    moment.drawWidth = form.surface.drawWidth();
    moment.newDrawings = form.newDrawings;
    moment.openedDrawings = form.openedDrawings;
}

bool History::isStep(const Moment& before, const CanvasState& now)
{
    const bool otherDrawing = before.newDrawings != now.newDrawings || before.openedDrawings != now.openedDrawings;
    return values(before.drawing) != values(now) || (otherDrawing && before.title.title != now.title);
}

std::size_t History::bytes(const Step& step)
{
    return sizeof(step) + step.ink.bytes() + texts(step.before.drawing) + texts(step.after.drawing);
}

/// Makes the last keys of a run part of its step.
void History::finishRun(Form1& form)
{
    if (!std::exchange(m_grew, false)) {
        return;
    }
    Step& run = m_steps.back();
    m_bytes -= bytes(run);
    run.ink.add(form.surface.takeChange());
    look(form, run.after);
    m_bytes += bytes(run);
    forgetOldest();
}

void History::keep(Step step)
{
    for (; m_steps.size() > m_done; m_steps.pop_back()) {
        m_bytes -= bytes(m_steps.back());
    }
    m_bytes += bytes(step);
    m_steps.push_back(std::move(step));
    ++m_done;
    forgetOldest();
}

void History::restore(Form1& form, Step& step, const Moment& moment)
{
    m_restored = true;
    m_bytes -= bytes(step);
    form.surface.exchange(step.ink);
    m_bytes += bytes(step);
    static_cast<Drawing&>(form) = moment.drawing;
    form.surface.setCurrent(moment.current);
    form.surface.setForeColor(moment.foreColor);
    const bool isNew = step.before.newDrawings != step.after.newDrawings;
    if (isNew || step.before.openedDrawings != step.after.openedDrawings) {
        static_cast<Title&>(form) = moment.title;
    }
    if (isNew) {
        static_cast<Modes&>(form) = moment.modes;
        form.surface.setDrawWidth(moment.drawWidth);
    }
    form.savedMark = 0;
    forgetOldest();
}

/// Or of what was taken back the last, if there is nothing else to forget.
void History::forgetOldest()
{
    while (m_bytes > memory && m_steps.size() > 1) {
        const bool fromFront = m_done > 1;
        m_bytes -= bytes(fromFront ? m_steps.front() : m_steps.back());
        if (fromFront) {
            m_steps.pop_front();
            --m_done;
        } else {
            m_steps.pop_back();
        }
    }
}

} // namespace schemlet
