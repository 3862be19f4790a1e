#pragma once

class QWidget;

namespace schemlet {

/// Applies the dynamic properties that a form gives a control; those about events are for QtWindow.
void applyFormProperties(QWidget& control);

} // namespace schemlet
