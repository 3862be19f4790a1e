#pragma once

#include "symbols/symbol_protocol.h"

namespace schemlet {

// Electrical machines, drawn the same way whatever the heading: motors, generators and the armature downwards from the
// pen, the field winding to the right. The foreground stays the family's colour, the marker stays where it was.

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
