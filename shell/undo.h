#pragma once

#include "canvas/form1.h"
#include "platform/event.h"

#include <string>

namespace schemlet {

// The steps are those of canvas/history.h.

/// Takes back the last step. Does nothing if there is none.
void undo(Form1& form);

/// Brings again the step that was taken back last.
void redo(Form1& form);

/// What the event that made the last step is called, such as "wire" or "AND Gate".
[[nodiscard]] std::string stepName(const Form1& form, const Event& event);

/// Shows in the status bar's two buttons what they would do.
void showUndo(Form1& form);

} // namespace schemlet
