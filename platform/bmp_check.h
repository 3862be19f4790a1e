#pragma once

#include "platform/picture_bytes.h"
#include "platform/picture_check.h"

namespace picture {

/// Throws CutShort or Unreadable unless the file is a BMP with all its pixels; says the picture's size in the finding
/// as soon as it is known.
void checkBmp(const Bytes& file, Finding& finding);

} // namespace picture
