#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// What the title shows in place of a file's name.
inline constexpr std::string_view noFile = " New File ";

/// Puts a file's name into the main window's title.
void setTitle(Form1& form, std::string_view file);

// The File menu. The answer to the question about saving is stored in the heading and stays there until the next arrow
// key: symbols mean nothing by 6 and 7, and draw leftward for 2.

/// Starts over, after a question if anything changed.
void new_(Form1& form);

/// Takes a picture file for the canvas. Only once the pen has moved since start or New. Throws
/// RuntimeError(Fault::invalidPicture).
void open(Form1& form);

/// Writes the canvas as a BMP picture. Cancelled or failed, it still counts as saved; cancelling brings a message,
/// failing a notice.
void save(Form1& form);

/// Prints the canvas after a question. Throws RuntimeError(Fault::printerError).
void print(Form1& form);

/// Ends the program after a question.
void exit_(Form1& form);

/// The reset behind New: an empty white canvas, a pen of normal width, no erase mode, all questions on, totals 0,
/// no name to save it by.
void Command4(Form1& form);

/// Ends the program.
void endf(Form1& form);

} // namespace schemlet
