#pragma once

#include <string_view>

namespace schemlet {

/// Whether a picture file is whole. Decoders fill what a BMP or JPEG lacks with grey or black and call that a success;
/// half a drawing would replace the whole one at the next save.
namespace picture {

enum class State {
    whole,        ///< nothing is missing; bytes behind the picture do not count
    cutShort,     ///< the file ends before the picture does
    unreadable,   ///< its headers make no sense
    unknownFormat ///< not a BMP, GIF, JPEG, PNG or XBM
};

/// Looks at the structure alone and decodes nothing. Takes any bytes, in time proportional to their number.
[[nodiscard]] State check(std::string_view bytes);

} // namespace picture

} // namespace schemlet
