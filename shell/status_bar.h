#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Brings what shows the state up to date: the status bar's panels behind the hint, the canvas's description, which
/// tells the same to a screen reader, the toolbar's buttons, the pointer over the canvas, and the place of the panel of
/// supplies and batteries, which stays away from the pen.
void showStatus(Form1& form);

/// The same a moment later, once for all events until then: ink comes first, and nobody reads faster.
void showStatusSoon(Form1& form);

/// The seconds of a notice are over.
void endNotice(Form1& form);

/// View > StatusBar.
void sss(Form1& form);

} // namespace schemlet
