#include "canvas/pen_marker.h"

namespace schemlet {

void placeMarker(Form1& form, double left)
{
    form.window.setLeft(control::Picture1, left);
    form.window.setTop(control::Picture1, form.y - markerRise);
}

void Timer2(Form1& form)
{
    form.window.setVisible(control::Picture1, form.blinkCount % 50 == 0);
    form.blinkCount += 25;
    if (form.blinkCount >= 10000) {
        form.blinkCount = 50; // a visible tick like 10000, so the wrap keeps the phase
    }
}

} // namespace schemlet
