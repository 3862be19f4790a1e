#pragma once

#include "platform/surface.h"

namespace schemlet {

/// Draws the product's picture, a little circuit made of the program's own symbols: 440 by 190 pixels.
void drawProductPicture(Surface& surface);

} // namespace schemlet
