#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Transformers hang down and to the right of the pen whatever the heading, in the colour they share with the
// transistors. Pen and marker stay.

extern const Symbol singlePhaseTransformer;
extern const Symbol centerTappedTransformer;

inline constexpr Handler singlephase = place<singlePhaseTransformer>;
inline constexpr Handler centertapped = place<centerTappedTransformer>;

} // namespace schemlet
