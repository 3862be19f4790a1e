#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// The gates with two inputs: outlines in the gates' colour. The pen ends at the output.

// These four are drawn only if the pen is heading right. The marker's left edge follows the pen.
extern const Symbol andGate;
extern const Symbol orGate;
extern const Symbol norGate;
extern const Symbol nandGate;
// These two always point right. The marker stays.
extern const Symbol exorGate;
extern const Symbol exnorGate;

inline constexpr Handler and_ = place<andGate>;
inline constexpr Handler or_ = place<orGate>;
inline constexpr Handler nor = place<norGate>;
inline constexpr Handler nand = place<nandGate>;
inline constexpr Handler exor = place<exorGate>;
inline constexpr Handler exnor = place<exnorGate>;

} // namespace schemlet
