#pragma once

#include "platform/surface.h"

namespace schemlet {

/// Draws the product's picture, a small circuit of the program's own symbols. It takes 440 by 190 pixels.
void drawProductPicture(Surface& surface);

} // namespace schemlet
