#include "canvas/form1.h"

#include "canvas/pen_marker.h"
#include "canvas/run.h"

namespace schemlet {

void resetCanvas(Form1& form)
{
    form.confirm.fill(1);
    form.canvasBackColor = white;
    form.wireColor = black;
    form.eraseMode = 0;
    form.resist = form.induc = form.capac = 0;
    form.supplyVoltage = form.supplyCurrent = form.supplyValue = 0;
    form.batteryPositive = form.batteryNegative = 0;
    form.resonanceDenominator = form.resonanceFrequency = form.qualityFactor = 0;
    form.frequencyCopy = form.angularFrequency = form.frequencyCapac = form.capacitiveReactance = 0;
    form.diodeCount = 0;
    form.blinkCount = 0;
    form.toolboxFollow = 0;
    form.window.setText(control::sb, " Press F1 for Help ");
    // Set before the pen moves to its start. So the first free-hand line begins at (0, 0) after the program's start,
    // and at the pen's last place after New.
    form.surface.setCurrent(pointBeside(form));
    form.x = 1600;
    form.y = 1500;
    beginWalk(form);
    form.savedMark = 100;
    placeMarker(form, form.x);
    form.heading = heading::right;
}

} // namespace schemlet
