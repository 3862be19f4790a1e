#pragma once

#include "canvas/form1.h"

namespace schemlet {

// The panel on the canvas in which the user chooses a supply or a battery and types its value. Both families may be
// open at once; one click on OK then draws a battery and a supply, one after the other.

/// Hides and disables the whole panel, as it is at start.
void preparePanel(Form1& form);

/// Opens the panel for supplies.
void suppl(Form1& form);
/// Opens the panel for batteries.
void batter(Form1& form);

// Choosing a kind shows the text box for the value.
void Option2(Form1& form); ///< current
void Option3(Form1& form); ///< voltage
void Option4(Form1& form); ///< positive
void Option5(Form1& form); ///< negative

/// In the family that was opened last, chooses the kind that was chosen last and proposes the value entered last.
void chooseAgain(Form1& form);

/// Draws the chosen sources with the number at the start of the text, in volt or ampere, 0 if there is none, and closes
/// the panel. Throws overflow for a number or a sum out of range.
void Command3(Form1& form);

/// Cancel the batteries or the supplies: draw nothing and add nothing.
void Command7(Form1& form);
void Command8(Form1& form);

/// Cancels the family that was opened last.
void cancelPanel(Form1& form);

/// Moves the panel away from the pen and the toolbox.
void keepPanelAside(Form1& form);

/// Unchecks all kinds.
void clearOptions(Form1& form);

/// Gives the panel the canvas colour picked last, even black.
void colorPanel(Form1& form);

} // namespace schemlet
