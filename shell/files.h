#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// The title's text while there is no file name.
inline constexpr std::string_view noFile = " New File ";

/// Shows a file's name in the main window's title.
void setTitle(Form1& form, std::string_view file);

// The File menu. The answer to the question about saving is stored in the heading until the next arrow key. Yes (6) and
// No (7) are no direction; Cancel (2) makes the pen head left.

/// Starts a new drawing. Asks first if anything has changed.
void new_(Form1& form);

/// Opens a picture file as the drawing's background. Works only if an arrow key was pressed since the start or New.
/// Throws RuntimeError(Fault::invalidPicture).
void open(Form1& form);

/// Saves the canvas as a BMP picture. A cancelled or failed save still counts as saved. After Cancel there is a message
/// box, after a failure a notice.
void save(Form1& form);

/// Copies the drawing to the clipboard as a picture, cut to its ink. Without ink, the clipboard keeps what it has.
void copyDrawing(Form1& form);

/// Prints the canvas after a question. Throws RuntimeError(Fault::printerError).
void print(Form1& form);

/// Ends the program after a question.
void exit_(Form1& form);

/// The reset that New does: an empty white canvas, a pen of normal width, no erase mode, all questions on, totals of 0,
/// no file name.
void Command4(Form1& form);

/// Ends the program.
void endf(Form1& form);

} // namespace schemlet
