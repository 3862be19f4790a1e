#include "shell/product_picture.h"

#include "canvas/jumper_ground.h"
#include "canvas/keyboard.h"
#include "circuit/supply_panel.h"
#include "circuit/valued_components.h"
#include "platform/event.h"
#include "platform/quiet.h"
#include "symbols/bipolar.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"

namespace {

/// Somebody who draws, as fast as commands run.
class Hand {
public:
    explicit Hand(Surface& surface)
        : m_form(surface, m_window, m_dialogs, m_pictures, m_window, m_window, m_window, m_window)
    {
        m_form.resistanceColor = m_form.inductanceColor = m_form.capacitanceColor = 0x2030A0; // dark red
        m_form.transformerColor = m_form.diodesColor = 0x407000;                              // dark green
        m_form.gatesColor = 0xA04000;                                                         // dark blue
    }

    void goTo(int x, int y)
    {
        m_form.x = x;
        m_form.y = y;
    }

    void wire(int arrow, int twips)
    {
        constexpr int stepLength = 50;
        for (int way = 0; way < twips; way += stepLength) {
            keyDown(m_form, arrow);
        }
    }

    void put(Handler component, const char* value = "")
    {
        m_dialogs.typed = value;
        component(m_form);
    }

    void putVoltage()
    {
        m_window.setValue(control::Option3, 1);
        Command3(m_form);
    }

private:
    QuietWindow m_window;
    QuietDialogs m_dialogs;
    QuietPictures m_pictures;
    Form1 m_form;
};

void drawSupply(Hand& hand)
{
    hand.goTo(2780, 1250);
    hand.wire(key::up, 150);
    hand.put(resistanc, "330");
    hand.wire(key::up, 150);
    hand.wire(key::left, 2300);
    hand.wire(key::down, 950);
    hand.putVoltage();
    hand.wire(key::down, 950);
    hand.put(ground);
}

/// From the ground up.
void drawSource(Hand& hand, int x)
{
    hand.goTo(x, 2510);
    hand.put(ground);
    hand.wire(key::up, 350);
    hand.putVoltage();
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
