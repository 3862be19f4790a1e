#pragma once

#include "platform/ink/ink.h"

namespace schemlet {

/// For a second image of the same canvas that has more pixels, for a sharp screen. Its scale is above 1. The part is in
/// pixels of the canvas.
namespace ink {

/// Copies the canvas's pixels: each one colours all finer pixels whose centres lie on it.
void enlarge(const Image& canvas, const Image& finer, const Area& part);

/// Call after drawing the same stroke on both images, because the two round differently. Afterwards each finer pixel
/// has a colour that the canvas has there or one pixel beside it, and each colour of the canvas is visible there or one
/// pixel beside it. So what is clean on the canvas is clean on the screen, too. The part must extend one pixel beyond
/// the stroke.
void reconcile(const Image& canvas, const Image& finer, const Area& part);

} // namespace ink

} // namespace schemlet
