#include "shell/hand.h"

#include "canvas/keyboard.h"
#include "circuit/supply_panel.h"

Hand::Hand(Surface& surface) : m_form(surface, m_window, m_dialogs, m_pictures, m_window, m_window, m_window, m_window)
{
    m_form.heading = heading::right; // all else is off at first: nothing asks
}

void Hand::goTo(int x, int y)
{
    m_form.x = x;
    m_form.y = y;
}

void Hand::wire(int arrow, int twips)
{
    for (int way = 0; way < twips; way += stepLength) {
        keyDown(m_form, arrow);
    }
}

void Hand::put(Handler component, std::string_view value)
{
    m_dialogs.typed = value;
    component(m_form);
}

void Hand::putSource(Name option)
{
    m_window.setValue(option, 1);
    Command3(m_form);
}
