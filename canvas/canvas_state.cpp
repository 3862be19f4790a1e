#include "canvas/canvas_state.h"

namespace schemlet {

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

} // namespace schemlet
