#pragma once

#include "platform/files/picture_bytes.h"

namespace schemlet {

namespace picture {

/// Throws CutShort or Unreadable unless the file is a BMP with all its pixels.
void checkBmp(const Bytes& file);

} // namespace picture

} // namespace schemlet
