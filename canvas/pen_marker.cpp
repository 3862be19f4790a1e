#include "canvas/pen_marker.h"

namespace schemlet {

void setMarkerLeft(Form1& form, double twips)
{
    form.markerLeft = twips;
    form.window.setLeft(control::Picture1, twips);
}

void setMarkerTop(Form1& form, double twips)
{
    form.markerTop = twips;
    form.window.setTop(control::Picture1, twips);
}

void placeMarker(Form1& form, double left)
{
    setMarkerLeft(form, left);
    setMarkerTop(form, form.y - markerRise);
}

void Timer2(Form1& form)
{
    form.window.setVisible(control::Picture1, form.blinkCount % 50 == 0);
    form.blinkCount += 25;
    if (form.blinkCount >= 10000) {
        form.blinkCount = 50; // the marker is visible at 50 as it is at 10000, so the blinking goes on evenly
    }
}

} // namespace schemlet
