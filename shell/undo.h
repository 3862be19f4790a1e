#pragma once

#include "canvas/form1.h"
#include "platform/event.h"

#include <string>

namespace schemlet {

// Undo and redo of the steps in canvas/history.h.

/// Undoes the last step. Does nothing if there is none.
void undo(Form1& form);

/// Redoes the step that was undone last. Does nothing if there is none.
void redo(Form1& form);

/// The name of the step that an event has just made, such as "wire" or "AND Gate".
[[nodiscard]] std::string stepName(const Form1& form, const Event& event);

/// Updates the status bar's two buttons: enables them, and names their step in the tool tip.
void showUndo(Form1& form);

} // namespace schemlet
