#include "shell/product_picture.h"

#include "canvas/jumper_ground.h"
#include "canvas/wire.h"
#include "circuit/sources.h"
#include "circuit/valued_components.h"
#include "symbols/bipolar.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"

namespace schemlet {

namespace {

constexpr Color passive = 0x2030A0; // dark red
constexpr Color active = 0x407000;  // dark green
constexpr Color logic = 0xA04000;   // dark blue

/// A surface and a pen that draws on it.
struct Sketch {
    Surface& surface;
    Pen pen;

    /// Draws wire in whole steps, at least this far.
    void wire(int heading, int twips)
    {
        pen.heading = heading;
        surface.setForeColor(black);
        for (int way = 0; way < twips; way += stepLength) {
            layStep(surface, pen);
        }
    }

    template <typename Component> void put(const Component& component, Color color, std::string_view value = {})
    {
        surface.setForeColor(color);
        draw(surface, pen, component.branches, value);
    }

    void putGround() const
    {
        surface.setForeColor(black);
        drawGround(surface, pen);
    }
};

void drawSupply(Surface& surface)
{
    Sketch sketch{surface, {2780, 1250}};
    sketch.wire(heading::up, 150);
    sketch.put(resistor, passive, "330");
    sketch.wire(heading::up, 150);
    sketch.wire(heading::left, 2300);
    sketch.wire(heading::down, 950);
    sketch.put(voltageSupply, black, "10");
    sketch.wire(heading::down, 950);
    sketch.putGround();
}

/// A source between the ground and a wire that goes up and then to the right.
Sketch drawSource(Surface& surface, double x, int up, int right)
{
    Sketch sketch{surface, {x, 2510}};
    sketch.putGround();
    sketch.wire(heading::up, 350);
    sketch.put(voltageSupply, black, "10");
    sketch.wire(heading::up, up);
    sketch.wire(heading::right, right);
    return sketch;
}

void drawGateAndItsLoad(Sketch& sketch)
{
    sketch.wire(heading::right, 750);
    sketch.put(nandGate, logic);
    sketch.wire(heading::right, 250);
    sketch.put(pnDiode, active);
    sketch.wire(heading::right, 200);
    sketch.put(resistor, passive, "47");
    sketch.wire(heading::right, 200);
    sketch.wire(heading::down, 150);
    sketch.put(inductor, passive, "22");
    sketch.wire(heading::down, 150);
    sketch.putGround();
}

} // namespace

void drawProductPicture(Surface& surface)
{
    drawSupply(surface);
    Sketch stage = drawSource(surface, 1100, 300, 350);
    stage.put(capacitor, passive, "4.7");
    stage.wire(heading::right, 750);
    stage.put(npnEmitter, active);
    drawGateAndItsLoad(stage);
    drawSource(surface, 3140, 350, 400); // for the gate's other input
}

} // namespace schemlet
