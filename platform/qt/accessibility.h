#pragma once

namespace schemlet {

/// Tells assistive programs that a CanvasWidget is a canvas, and that a widget with the property "isStatusBar" is a
/// status bar. Hides widgets with the property "isDecoration" from them. Call once, after creating the application
/// object.
void installAccessibility();

} // namespace schemlet
