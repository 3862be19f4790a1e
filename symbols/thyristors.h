#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Thyristors and related parts hang down from the pen for every heading. They have no colour of their own and are drawn
// in the current foreground colour. The marker stays.

extern const Symbol scrThyristor;
extern const Symbol triacThyristor;
extern const Symbol diacThyristor;
extern const Symbol ujtThyristor;

inline constexpr Handler SCR = place<scrThyristor>;
inline constexpr Handler TRIAC = place<triacThyristor>;
inline constexpr Handler DIAC = place<diacThyristor>;
inline constexpr Handler UJT = place<ujtThyristor>;

} // namespace schemlet
