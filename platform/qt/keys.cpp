#include "platform/qt/keys.h"

#include "platform/event.h"

namespace schemlet {

namespace keys {

bool isModifier(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R: return true;
    default: return false;
    }
}

int code(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left: return key::left;
    case Qt::Key_Up: return key::up;
    case Qt::Key_Right: return key::right;
    case Qt::Key_Down: return key::down;
    default: return 0;
    }
}

std::optional<int> character(const QKeyEvent& event)
{
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0 || event.text().isEmpty()) {
        return {};
    }
    return static_cast<int>(event.text().front().unicode());
}

} // namespace keys

} // namespace schemlet
