#include "platform/files/picture_check.h"

#include "platform/files/bmp_check.h"
#include "platform/files/picture_bytes.h"

namespace schemlet {

namespace picture {

namespace {

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";

/// Walks from chunk to chunk to the chunk that ends the picture.
void checkPng(const Bytes& file)
{
    constexpr std::uint32_t end = 0x49454E44; // "IEND"
    std::uint32_t name = 0;
    for (std::int64_t at = pngSignature.size(); name != end;) {
        const std::uint32_t length = file.big32(at);
        require(length <= INT32_MAX);
        name = file.big32(at + 4);
        at += 12 + std::int64_t{length};
        file.reach(at);
    }
}

namespace marker {
constexpr std::uint32_t stuffing = 0x00; ///< makes an FF a byte of the compressed pixels
constexpr std::uint32_t temporary = 0x01;
constexpr std::uint32_t firstRestart = 0xD0;
constexpr std::uint32_t start = 0xD8; ///< follows the last restart marker
constexpr std::uint32_t end = 0xD9;
} // namespace marker

bool standsAlone(std::uint32_t code)
{
    return code == marker::stuffing || code == marker::temporary ||
           (code >= marker::firstRestart && code <= marker::start);
}

/// Walks from marker to marker. Bytes between two segments are compressed pixels or do not matter.
void checkJpeg(const Bytes& file)
{
    for (std::int64_t at = 0;;) {
        at = file.find('\xFF', at);
        while (file.u8(at) == 0xFF) { // a marker may start with any number of them
            ++at;
        }
        const std::uint32_t code = file.u8(at++);
        if (code == marker::end) {
            return;
        }
        if (!standsAlone(code)) {
            const std::uint32_t length = file.big16(at);
            require(length >= 2);
            at += length;
        }
    }
}

std::int64_t colorTableBytes(std::uint32_t flags)
{
    return (flags & 0x80U) != 0 ? 3LL << ((flags & 7U) + 1) : 0;
}

/// Walks to the end of the first picture. The others of an animation are not shown.
void checkGif(const Bytes& file)
{
    std::int64_t at = 13 + colorTableBytes(file.u8(10));
    for (bool last = false; !last;) {
        const std::uint32_t block = file.u8(at);
        require(block == '!' || block == ',');
        last = block == ',';
        at += last ? 11 + colorTableBytes(file.u8(at + 9)) : 2;
        for (std::uint32_t length = file.u8(at++); length != 0; length = file.u8(at++)) {
            at += length;
        }
    }
}

/// An XBM is C source with one array at its end.
void checkXbm(const Bytes& file)
{
    (void)file.find('}', 0);
}

State checkContents(std::string_view bytes)
{
    const Bytes file(bytes);
    if (bytes.starts_with("BM")) {
        checkBmp(file);
    } else if (bytes.starts_with(pngSignature)) {
        checkPng(file);
    } else if (bytes.starts_with("\xFF\xD8\xFF")) {
        checkJpeg(file);
    } else if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) {
        checkGif(file);
    } else if (bytes.starts_with("#define")) {
        checkXbm(file);
    } else {
        return State::unknownFormat;
    }
    return State::whole;
}

} // namespace

State check(std::string_view bytes)
{
    try {
        return checkContents(bytes);
    } catch (const CutShort&) {
        return State::cutShort;
    } catch (const Unreadable&) {
        return State::unreadable;
    }
}

} // namespace picture

} // namespace schemlet
