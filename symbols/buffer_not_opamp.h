#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Triangles with one input, drawn along the heading. The pen ends at the output or a little beyond it. The marker's
// left edge follows the pen.
extern const Symbol bufferSymbol;
extern const Symbol notGate;
/// The operational amplifier always points right. Pen and marker stay at the back of its triangle.
extern const Symbol opAmp;

inline constexpr Handler buffer = place<bufferSymbol>;
inline constexpr Handler notgate = place<notGate>;
inline constexpr Handler opamp = place<opAmp>;

} // namespace schemlet
