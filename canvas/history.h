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

/// The steps for undo and redo. A step has the pixels that an event replaced, and the state before and after the event.
/// It does not know which command made it. Presses of one arrow key in a row are a streak, and a streak is one step.
class History {
public:
    /// Call before each event that may change the drawing. For an arrow key, pass its code; it continues that key's
    /// streak or starts a new one. For any other event, pass 0, which ends the streak.
    void begin(Form1& form, int arrow);
    /// Call after the event. Returns whether it made a new step. If so, call name().
    bool end(Form1& form);
    /// Names the step that end() has just made.
    void name(std::string step) { m_steps.back().name = std::move(step); }
    /// The drawing before the step that end() has just made.
    [[nodiscard]] const Drawing& before() const { return m_event.before.drawing; }

    /// Call when a mouse button, as in platform/event.h, was pressed or released. All events from a press of the left
    /// button to its release are one step.
    void press(int button) { m_buttons |= button; }
    void release(int button) { m_buttons &= ~button; }
    /// Call when the pen marker blinks. Two blinks without an event in between end a streak.
    void pause();

    /// Undoes the last step, or redoes the step undone last. Restores ink and state, but does not update the windows.
    /// Returns the step's name; empty if there is no step, or while a mouse button is held.
    std::string undo(Form1& form);
    std::string redo(Form1& form);

    /// The name of the step that undo() or redo() would take; empty if there is none.
    [[nodiscard]] std::string_view undoable() const;
    [[nodiscard]] std::string_view redoable() const;

private:
    /// The state before or after a step.
    struct Snapshot {
        Drawing drawing;
        Point current; ///< of the surface
        Color foreColor = black;
        // Restored only if the step contains New; the title also if it contains Open.
        Title title;
        Modes modes;
        int drawWidth = 0;
        int newDrawings = 0;
        int openedDrawings = 0;
    };

    struct Step {
        std::string name;
        Snapshot before;
        Snapshot after;
        InkChange ink;
    };

    /// The event between begin() and end().
    struct CurrentEvent {
        Snapshot before;        ///< the state before the event
        int arrow = 0;          ///< its arrow key
        bool continues = false; ///< it continues the streak
        bool deferred = false;  ///< its change is taken when the streak ends
        bool restored = false;  ///< it was an undo or a redo
    };

    struct Streak {
        int arrow = 0;           ///< its arrow key, 0 if there is no streak
        int blinks = 0;          ///< since the last event
        bool unfinished = false; ///< its step lacks the changes of its last keys
    };

    static void capture(const Form1& form, Snapshot& snapshot);
    static bool isStep(const Snapshot& before, const CanvasState& now);
    static std::size_t bytes(const Step& step);
    [[nodiscard]] bool leftIsHeld() const;
    void finishStreak(Form1& form);
    void keep(Step step);
    void restore(Form1& form, std::size_t index, const Snapshot& snapshot);
    void limitMemory(std::size_t index);

    std::deque<Step> m_steps;
    std::size_t m_done = 0;  ///< the number of steps that are not undone; they come first
    std::size_t m_bytes = 0; ///< of all steps
    int m_buttons = 0;       ///< the held mouse buttons
    CurrentEvent m_event;
    Streak m_streak;
};

} // namespace schemlet
