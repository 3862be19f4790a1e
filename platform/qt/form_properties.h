#pragma once

class QWidget;

namespace schemlet {

/// Applies the dynamic properties that a form sets on a control. QtWindow reads those that concern events.
void applyFormProperties(QWidget& control);

} // namespace schemlet
