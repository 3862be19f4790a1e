#pragma once

#include "canvas/canvas_state.h"
#include "platform/ink/changes.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

namespace schemlet {

struct Form1;

/// The steps that undo takes back. A step is all that changed between two moments, whatever changed it. It keeps the
/// pixels that were replaced and the drawing's part of the state, and nothing about how they came about.
class History {
public:
    /// Comes before each event that may change the drawing. The code of an arrow key goes on with the run of that key,
    /// if there is one; 0 ends the run.
    void begin(Form1& form, int arrow);
    /// Comes after it. Returns whether there is a new step, which then wants a name.
    bool end(Form1& form);
    void name(std::string step) { m_steps.back().name = std::move(step); }
    /// The drawing before the step that end() told of.
    [[nodiscard]] const Drawing& before() const { return m_before.drawing; }

    /// A mouse button, as in platform/event.h, went down or came up. All events from a press of the left one to its
    /// release are one step.
    void press(int button) { m_buttons |= button; }
    void release(int button) { m_buttons &= ~button; }
    /// The pen marker blinked. Two blinks without an arrow key between end a run.
    void pause();

    /// Takes back the last step, or brings again the one that was taken back last: ink and state, but not yet what the
    /// windows show of it. Returns the step's name; empty if there is no step, or while a button is held.
    std::string undo(Form1& form);
    std::string redo(Form1& form);

    /// The names of the steps that undo and redo would take, empty if there is none.
    [[nodiscard]] std::string_view undoable() const;
    [[nodiscard]] std::string_view redoable() const;

private:
    struct Moment {
        Drawing drawing;
        Point current; ///< where the next text begins
        Color foreColor = black;
        // What New resets beside the drawing; Open changes the title.
        Title title;
        Modes modes;
        int drawWidth = 0;
        int newDrawings = 0;
        int openedDrawings = 0;
    };

    struct Step {
        std::string name;
        Moment before;
        Moment after;
        InkChange ink;
    };

    static void look(const Form1& form, Moment& moment);
    static bool isStep(const Moment& before, const CanvasState& now);
    static std::size_t bytes(const Step& step);
    [[nodiscard]] bool leftIsHeld() const;
    void finishRun(Form1& form);
    void keep(Step step);
    void restore(Form1& form, Step& step, const Moment& moment);
    void forgetOldest();

    std::deque<Step> m_steps;
    std::size_t m_done = 0;  ///< the steps behind these were taken back
    std::size_t m_bytes = 0; ///< of all steps
    Moment m_before;         ///< the event
    int m_arrow = 0;         ///< the event's
    int m_run = 0;           ///< the arrow key whose run the last step is, as long as it goes on
    int m_blinks = 0;        ///< since that key came last
    bool m_goesOn = false;   ///< the event is a key of that run
    bool m_unseen = false;   ///< and what it changes is looked at later
    bool m_grew = false;     ///< the run's last keys are not yet part of its step
    int m_buttons = 0;       ///< those that are held
    bool m_restored = false; ///< the event was an undo or a redo
};

} // namespace schemlet
