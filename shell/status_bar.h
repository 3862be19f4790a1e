#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Updates everything that shows the state: the panels and buttons of the status bar, the canvas's description for
/// screen readers, the toolbar's buttons, the pointer over the canvas, and the place of the panel of sources, which
/// stays away from the pen.
void showStatus(Form1& form);

/// Starts a timer that calls showStatus() once for all events until then. So ink is on the screen before any text is
/// laid out.
void showStatusSoon(Form1& form);

/// Removes a notice when its time is over.
void endNotice(Form1& form);

/// View > StatusBar.
void sss(Form1& form);

} // namespace schemlet
