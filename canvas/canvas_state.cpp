#include "canvas/canvas_state.h"

#include "circuit/output_window.h"
#include "circuit/supply_panel.h"

void setTitle(Form1& form, std::string_view file)
{
    form.controls.setCaption(" - " + std::string(productName) + " " + std::string(file));
}

void tell(Form1& form, const RuntimeError& error)
{
    form.dialogs.messageBox(error.what(), Box::okWarning, productName);
}

void load(Form1& form)
{
    setTitle(form, noFile);
    form.confirm.fill(1);
    form.canvasBackColor = white;
    form.wireColor = black;
    colorPanel(form);
    form.eraseMode = 0;
    clearOptions(form);
    form.resist = form.induc = form.capac = 0;
    form.supplyVoltage = form.supplyCurrent = form.supplyValue = 0;
    form.batteryPositive = form.batteryNegative = 0;
    form.resonanceDenominator = form.resonanceFrequency = form.qualityFactor = 0;
    form.frequencyCopy = form.angularFrequency = form.frequencyCapac = form.capacitiveReactance = 0;
    form.diodeCount = 0;
    form.blinkCount = 0;
    form.toolboxFollow = 0;
    form.controls.setText(control::sb, " Press F1 for Help ");
    // Before the pen gets its place: the first free-hand line starts at (0, 0), and after a reset at the old pen.
    form.surface.setCurrent(pointBeside(form));
    form.x = 1600;
    form.y = 1500;
    form.savedMark = 100;
    placeMarker(form, form.x);
    form.heading = heading::right;
    refreshOutput(form);
}

std::string_view headingName(int heading)
{
    switch (heading) {
    case heading::right: return "right";
    case heading::left: return "left";
    case heading::up: return "up";
    case heading::down: return "down";
    default: return {};
    }
}

void placeMarker(Form1& form, double left)
{
    form.controls.setLeft(control::Picture1, left);
    form.controls.setTop(control::Picture1, form.y - markerRise);
}

void Timer2(Form1& form)
{
    form.controls.setVisible(control::Picture1, form.blinkCount % 50 == 0);
    form.blinkCount += 25;
    if (form.blinkCount >= 10000) {
        form.blinkCount = 50; // a visible tick like 10000, so the wrap keeps the phase
    }
}
