#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Electrical machines look the same for every heading: motors, generators and the armature point down from the pen, the
// field winding points right. The foreground keeps the family's colour. The marker stays.

extern const Symbol acMotor;
extern const Symbol dcMotor;
extern const Symbol acGenerator;
extern const Symbol dcGenerator;
extern const Symbol armatureWinding;
extern const Symbol fieldWinding;

inline constexpr Handler acmotor = place<acMotor>;
inline constexpr Handler dcmotor = place<dcMotor>;
inline constexpr Handler acgenerator = place<acGenerator>;
inline constexpr Handler dcgenerator = place<dcGenerator>;
inline constexpr Handler armature = place<armatureWinding>;
inline constexpr Handler field = place<fieldWinding>;

} // namespace schemlet
