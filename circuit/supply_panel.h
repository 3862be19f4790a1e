#pragma once

#include "canvas/form1.h"

namespace schemlet {

// Supplies and batteries are chosen and typed in a panel on the canvas. Both families may be open at once: one click
// on its button then draws a battery and a supply, one after the other. Sources are black, which stays the foreground
// colour, and leave the marker where it is.

/// Hides and disables all of it, as it is at start.
void preparePanel(Form1& form);

/// Opens the panel for supplies.
void suppl(Form1& form);
/// Opens the panel for batteries.
void batter(Form1& form);

// Choosing a kind brings up the value's text box.
void Option2(Form1& form); ///< current
void Option3(Form1& form); ///< voltage
void Option4(Form1& form); ///< positive
void Option5(Form1& form); ///< negative

/// Draws the chosen sources with the number at the start of the text, in volt or ampere, 0 if there is none, and closes
/// the panel. Throws overflow for a number or a sum out of range.
void Command3(Form1& form);

/// Cancel the batteries or the supplies: draw and sum nothing.
void Command7(Form1& form);
void Command8(Form1& form);

/// Runs the cancel button of the family that was opened last.
void cancelPanel(Form1& form);

/// Keeps the panel off the pen and the toolbox.
void keepPanelAside(Form1& form);

/// Takes back what was chosen.
void clearOptions(Form1& form);

/// Gives the panel the canvas's colour, black too.
void colorPanel(Form1& form);

} // namespace schemlet
