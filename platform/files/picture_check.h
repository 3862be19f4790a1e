#pragma once

#include <string_view>

namespace schemlet {

/// Checks whether a picture file is whole. If a BMP or JPEG file ends too soon, decoders fill the rest with grey or
/// black and report success. The next save would then replace the whole drawing by half of it.
namespace picture {

enum class State {
    whole,        ///< nothing is missing; bytes after the picture do not matter
    cutShort,     ///< the file ends before the picture does
    unreadable,   ///< its headers make no sense
    unknownFormat ///< not a BMP, GIF, JPEG, PNG or XBM
};

/// Checks only the structure and decodes nothing. Accepts any bytes. The time is proportional to their number.
[[nodiscard]] State check(std::string_view bytes);

} // namespace picture

} // namespace schemlet
