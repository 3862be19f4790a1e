#pragma once

#include <cstdint>
#include <string_view>

/// Whether a picture file is all there. Decoders paint what a BMP or a JPEG lacks in grey or black and call that a
/// success; half a drawing would replace the whole one at the next save.
namespace picture {

enum class State {
    complete,     ///< nothing is missing; bytes behind the picture do not count
    cutShort,     ///< the file ends before the picture does
    unreadable,   ///< headers that make no sense, or that would only keep a decoder busy
    unknownFormat ///< not one of BMP, PNG, JPEG, GIF and XBM
};

struct Finding {
    State state = State::unknownFormat;
    std::int64_t width = 0; ///< in pixels, as the header says, be it true or not; 0 where it does not say
    std::int64_t height = 0;
    /// Memory that decoding the picture to 32 bits a pixel takes at most, all copies together.
    int bytesPerPixel = 5;
};

/// Looks at structure alone, decodes nothing, and copes with any bytes in time proportional to their number.
[[nodiscard]] Finding check(std::string_view bytes);

} // namespace picture
