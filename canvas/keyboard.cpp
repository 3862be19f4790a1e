#include "canvas/keyboard.h"

#include "canvas/wire.h"

namespace schemlet {

namespace {

void arrowKey(Form1& form, const Direction& way)
{
    turnPen(form, way);
    if (form.eraseMode != 0) {
        return;
    }
    form.surface.setForeColor(form.wireColor);
    lookAhead(form, way);
    layWire(form.surface, form, way, stepLength);
    placeMarkerBeside(form, way);
}

} // namespace

void keyDown(Form1& form, int code)
{
    form.savedMark = 0;
    if (const Direction* const way = directionOfKey(code); way != nullptr) {
        arrowKey(form, *way);
    }
}

void turn(Form1& form, int heading)
{
    form.savedMark = 0;
    turnPen(form, *directionOfHeading(heading));
}

void eraser1(Form1& form)
{
    constexpr int normalWidth = 2;
    constexpr int eraserWidth = 10;
    form.surface.setDrawWidth(form.surface.drawWidth() == eraserWidth ? normalWidth : eraserWidth);
    form.eraseMode = form.eraseMode == 0 ? 1 : 0;
    form.window.flipVisible(control::Label27);
}

void toggleAutoJumper(Form1& form)
{
    form.autoJumper = form.autoJumper == 1 ? 0 : 1;
}

void jj(Form1& form)
{
    form.window.flipChecked(item::jj);
    toggleAutoJumper(form);
}

} // namespace schemlet
