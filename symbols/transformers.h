#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Transformers are drawn below the pen and to its right, for every heading. They share the transistors' colour. Pen and
// marker stay.

extern const Symbol singlePhaseTransformer;
extern const Symbol centerTappedTransformer;

inline constexpr Handler singlephase = place<singlePhaseTransformer>;
inline constexpr Handler centertapped = place<centerTappedTransformer>;

} // namespace schemlet
