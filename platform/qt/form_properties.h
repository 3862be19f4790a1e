#pragma once

class QWidget;

/// Applies the dynamic properties that a form gives a control; those about events are for QtWindow.
void applyFormProperties(QWidget& control);
