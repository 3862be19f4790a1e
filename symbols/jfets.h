#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Junction field-effect transistors hang down from the pen for every heading, in the transistors' colour. The marker
// stays.

extern const Symbol nChannelJfet;
extern const Symbol pChannelJfet;

inline constexpr Handler nchannel = place<nChannelJfet>;
inline constexpr Handler pchannel = place<pChannelJfet>;

} // namespace schemlet
