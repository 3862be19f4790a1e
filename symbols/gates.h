#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// The two-input gates: bare outlines in the gates' colour; the pen leaves at the output.

// These four draw only when the pen heads right. The marker's left edge follows the pen.
extern const Symbol andGate;
extern const Symbol orGate;
extern const Symbol norGate;
extern const Symbol nandGate;
// These two draw to the right whatever the heading. The marker stays.
extern const Symbol exorGate;
extern const Symbol exnorGate;

inline constexpr Handler and_ = place<andGate>;
inline constexpr Handler or_ = place<orGate>;
inline constexpr Handler nor = place<norGate>;
inline constexpr Handler nand = place<nandGate>;
inline constexpr Handler exor = place<exorGate>;
inline constexpr Handler exnor = place<exnorGate>;

} // namespace schemlet
