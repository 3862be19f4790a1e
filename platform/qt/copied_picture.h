#pragma once

#include "platform/qt/canvas_surface.h"

namespace schemlet {

/// The part of the canvas that has ink, with a margin of 10 canvas pixels of paper, in the screen's pixels. Its
/// resolution gives it the same size on paper at every pixel ratio. Null if there is no ink. Ink is what has another
/// colour than the paper.
[[nodiscard]] QImage pictureOfInk(const CanvasSurface& surface);

} // namespace schemlet
