#pragma once

#include "canvas/form1.h"

namespace schemlet {

// Commands that draw in the wire colour and leave the pen where it is.

/// A junction dot at the pen.
void dot(Form1& form);

/// Asks for a text and prints it beyond the pen along the heading, centred across it; to the right if the heading is no
/// direction.
void label(Form1& form);

} // namespace schemlet
