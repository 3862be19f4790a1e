#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Bipolar transistors with the ground that their circuit ties them to, drawn the same way whatever the heading, in the
// colour they share with the transformers. The marker's left edge follows the pen.

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
