#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Bipolar transistors, each with the ground of its circuit. They look the same for every heading and share the
// transformers' colour. The marker's left edge follows the pen.

extern const Symbol npnEmitter;
extern const Symbol npnBase;
extern const Symbol npnCollector;
extern const Symbol pnpEmitter;
extern const Symbol pnpBase;
extern const Symbol pnpCollector; ///< has the strokes of npnCollector

inline constexpr Handler emitter = place<npnEmitter>;
inline constexpr Handler base = place<npnBase>;
inline constexpr Handler collector = place<npnCollector>;
inline constexpr Handler emitter1 = place<pnpEmitter>;
inline constexpr Handler base1 = place<pnpBase>;
inline constexpr Handler collector1 = place<pnpCollector>;

} // namespace schemlet
