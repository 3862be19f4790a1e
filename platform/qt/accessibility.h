#pragma once

namespace schemlet {

/// Tells assistive programs that a CanvasWidget is a canvas and what a form marks as "isStatusBar" a status bar, and
/// keeps from them what it marks as "isDecoration".
/// Call once, when the application object exists.
void installAccessibility();

} // namespace schemlet
