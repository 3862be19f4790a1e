#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Diodes in the diodes' colour. Afterwards the foreground is black, except after a PN diode whose question was
// answered. The marker stays. PN and NP diodes are counted even if nothing is drawn.

extern const Symbol zenerDiode;  ///< always points right
extern const Symbol pnDiode;     ///< along the heading
extern const Symbol npDiode;     ///< along the heading, starting with its bar
extern const Symbol tunnelDiode; ///< always points down

inline constexpr Handler diode = place<zenerDiode>;
inline constexpr Handler diod = place<pnDiode>;
inline constexpr Handler npdiode = place<npDiode>;
inline constexpr Handler tunneldiode = place<tunnelDiode>;

} // namespace schemlet
