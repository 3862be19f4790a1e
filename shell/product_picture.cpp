#include "shell/product_picture.h"

#include "canvas/jumper_ground.h"
#include "circuit/valued_components.h"
#include "platform/event.h"
#include "shell/hand.h"
#include "symbols/bipolar.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"

namespace {

void drawSupply(Hand& hand)
{
    hand.goTo(2780, 1250);
    hand.wire(key::up, 150);
    hand.put(resistanc, "330");
    hand.wire(key::up, 150);
    hand.wire(key::left, 2300);
    hand.wire(key::down, 950);
    hand.putSource(control::Option3);
    hand.wire(key::down, 950);
    hand.put(ground);
}

/// From the ground up.
void drawSource(Hand& hand, int x)
{
    hand.goTo(x, 2510);
    hand.put(ground);
    hand.wire(key::up, 350);
    hand.putSource(control::Option3);
}

void drawGateAndItsLoad(Hand& hand)
{
    hand.wire(key::right, 750);
    hand.put(nand);
    hand.wire(key::right, 250);
    hand.put(diod);
    hand.wire(key::right, 200);
    hand.put(resistanc, "47");
    hand.wire(key::right, 200);
    hand.wire(key::down, 150);
    hand.put(inductanc, "22");
    hand.wire(key::down, 150);
    hand.put(ground);
}

} // namespace

void drawProductPicture(Surface& surface)
{
    Hand hand(surface);
    CanvasState& colors = hand.state();
    colors.resistanceColor = colors.inductanceColor = colors.capacitanceColor = 0x2030A0; // dark red
    colors.transformerColor = colors.diodesColor = 0x407000;                              // dark green
    colors.gatesColor = 0xA04000;                                                         // dark blue
    drawSupply(hand);
    drawSource(hand, 1100);
    hand.wire(key::up, 300);
    hand.wire(key::right, 350);
    hand.put(capacitanc, "4.7");
    hand.wire(key::right, 750);
    hand.put(emitter);
    drawGateAndItsLoad(hand);
    drawSource(hand, 3140); // for the gate's other input
    hand.wire(key::up, 350);
    hand.wire(key::right, 400);
}
