#pragma once

#include "tests/gui/desk.h"
#include "tests/gui/words.h"

inline constexpr auto saveQuestion = "Do you want to save changes?";
inline constexpr auto printQuestion = "Do you want to print this form?";

void clickWords(Program& program, const QString& words);

/// What a command brings: a window, which is closed again, or words on the screen, or both.
struct Outcome {
    const char* window = nullptr;
    const char* words = nullptr;
};
void expect(Program& program, const Outcome& outcome);

/// Opens the menu bar's menu that is so many to the right of the first one, or to the left of it, round the end. (To
/// the right there is no way past a menu that begins with a submenu.)
void openMenu(Program& program, int place);

/// A check item and its mark, as the menu shows them.
[[nodiscard]] QImage lookOf(Program& program, const char* menu, const char* item);
