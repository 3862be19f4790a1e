#include "platform/window.h"

namespace schemlet {

void Window::show(std::initializer_list<Name> controls)
{
    for (const Name control : controls) {
        setVisible(control, true);
    }
}

void Window::hide(std::initializer_list<Name> controls)
{
    for (const Name control : controls) {
        setVisible(control, false);
    }
}

void Window::enable(std::initializer_list<Name> controls)
{
    for (const Name control : controls) {
        setEnabled(control, true);
    }
}

void Window::disable(std::initializer_list<Name> controls)
{
    for (const Name control : controls) {
        setEnabled(control, false);
    }
}

void Window::flipVisible(Name control)
{
    setVisible(control, !visible(control));
}

} // namespace schemlet
