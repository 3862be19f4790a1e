#pragma once

#include "platform/picture_bytes.h"
#include "platform/picture_check.h"

namespace picture {

/// Throws unless the file is a BMP with all its pixels.
void checkBmp(const Bytes& file, Finding& finding);

} // namespace picture
