#pragma once

#include "platform/ink/ink.h"

namespace schemlet {

/// A second image of the same canvas that has more pixels, for a sharp screen. Its scale says how many along each of
/// the canvas's pixels, any number above 1. The part is of the canvas.
namespace ink {

/// Shows the canvas's own pixels: each one colours all of the finer pixels whose centres lie on it.
void enlarge(const Image& canvas, const Image& finer, const Area& part);

/// Keeps the finer image true to the canvas after the same stroke went to both, each with its own rounding: a finer
/// pixel has a colour that the canvas has there or one pixel beside it, and each colour of the canvas shows there or
/// one pixel beside it. So what is clean on the canvas is clean on the screen too. The part must reach one pixel beyond
/// the stroke.
void reconcile(const Image& canvas, const Image& finer, const Area& part);

} // namespace ink

} // namespace schemlet
