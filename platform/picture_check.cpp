#include "platform/picture_check.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace picture {

namespace {

/// Thrown where the picture goes on and the file does not.
struct CutShort {};

/// Thrown where headers contradict themselves.
struct Unreadable {};

/// Numbers from the file. Places are 64 bits wide: sums of a few 32-bit numbers from a file do not overflow.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}

    [[nodiscard]] std::int64_t size() const { return static_cast<std::int64_t>(m_bytes.size()); }

    /// Everything before this place must be there.
    void reach(std::int64_t end) const
    {
        if (end > size()) {
            throw CutShort{};
        }
    }

    [[nodiscard]] std::uint32_t u8(std::int64_t at) const
    {
        reach(at + 1);
        return static_cast<unsigned char>(m_bytes[static_cast<std::size_t>(at)]);
    }
    [[nodiscard]] std::uint32_t little16(std::int64_t at) const { return u8(at) | u8(at + 1) << 8U; }
    [[nodiscard]] std::uint32_t little32(std::int64_t at) const { return little16(at) | little16(at + 2) << 16U; }
    [[nodiscard]] std::uint32_t big16(std::int64_t at) const { return u8(at) << 8U | u8(at + 1); }
    [[nodiscard]] std::uint32_t big32(std::int64_t at) const { return big16(at) << 16U | big16(at + 2); }

    /// Where this byte stands next.
    [[nodiscard]] std::int64_t find(char byte, std::int64_t from) const
    {
        const std::size_t found = from < size() ? m_bytes.find(byte, static_cast<std::size_t>(from)) : m_bytes.npos;
        if (found == std::string_view::npos) {
            throw CutShort{};
        }
        return static_cast<std::int64_t>(found);
    }

private:
    std::string_view m_bytes;
};

void require(bool sense)
{
    if (!sense) {
        throw Unreadable{};
    }
}

// BMP ----------------------------------------------------------------------------------------------------------------

enum class Compression : std::uint32_t { none, rle8, rle4, bitFields };

struct BmpHeader {
    std::int64_t width = 0;
    std::int64_t height = 0; ///< never negative: which way the rows run does not matter here
    std::uint32_t bitsPerPixel = 0;
    Compression compression = Compression::none;
    std::int64_t dataBytes = 0; ///< of compressed pixels; 0 if the header does not say
    std::int64_t pixelsAt = 0;
};

constexpr std::int64_t bmpFileHeader = 14;
constexpr std::uint32_t bmpCoreHeader = 12;
constexpr std::uint32_t bmpInfoHeader = 40;

std::int64_t paletteBytes(const BmpHeader& header, std::uint32_t used, int entryBytes)
{
    if (header.bitsPerPixel > 8) {
        return 0;
    }
    require(used <= 256);
    return std::int64_t{used != 0 ? used : 1U << header.bitsPerPixel} * entryBytes;
}

BmpHeader bmpHeader(const Bytes& file, Finding& finding)
{
    BmpHeader header;
    const std::uint32_t infoBytes = file.little32(bmpFileHeader);
    std::int64_t end = bmpFileHeader + infoBytes;
    if (infoBytes == bmpCoreHeader) {
        header.width = file.little16(18);
        header.height = file.little16(20);
        header.bitsPerPixel = file.little16(24);
        end += paletteBytes(header, 0, 3);
    } else {
        require(infoBytes >= bmpInfoHeader && infoBytes <= 124);
        header.width = static_cast<std::int32_t>(file.little32(18));
        header.height = std::abs(std::int64_t{static_cast<std::int32_t>(file.little32(22))});
        header.bitsPerPixel = file.little16(28);
        header.compression = Compression{file.little32(30)};
        header.dataBytes = file.little32(34);
        const bool masksBehind = infoBytes == bmpInfoHeader && header.compression == Compression::bitFields;
        end += paletteBytes(header, file.little32(46), 4) + (masksBehind ? 12 : 0);
    }
    finding.width = header.width;
    finding.height = header.height;
    header.pixelsAt = std::max<std::int64_t>(end, file.little32(10));
    file.reach(header.pixelsAt);
    return header;
}

/// Runs of pixels up to the mark that ends the picture, or all its rows. Steps that draw nothing are legal but never
/// needed in number; with a bound on them no file keeps a decoder busy for long.
void walkRuns(const Bytes& file, const BmpHeader& header)
{
    const bool nibbles = header.compression == Compression::rle4;
    const std::int64_t bound = header.pixelsAt + 4 * (header.width + 1) * (header.height + 1);
    std::int64_t at = header.pixelsAt;
    for (std::int64_t row = 0; row < header.height;) {
        require(at < bound);
        if (header.dataBytes != 0 && at >= header.pixelsAt + header.dataBytes && at == file.size()) {
            return; // without the mark, but as long as was said
        }
        const std::uint32_t count = file.u8(at);
        const std::uint32_t value = file.u8(at + 1);
        at += 2;
        if (count != 0) {
            continue; // so many pixels of one colour
        }
        switch (value) {
        case 0: ++row; break;
        case 1: return;
        case 2:
            row += file.u8(at + 1);
            at += 2;
            break;
        default: // so many pixels as they are, padded to an even number of bytes
            at += ((nibbles ? (value + 1) / 2 : value) + 1) / 2 * 2;
        }
    }
}

void checkBmp(const Bytes& file, Finding& finding)
{
    const BmpHeader header = bmpHeader(file, finding);
    const std::uint32_t bits = header.bitsPerPixel;
    require(header.width > 0 && header.height > 0);
    switch (header.compression) {
    case Compression::none:
        require(bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32);
        break;
    case Compression::bitFields: require(bits == 16 || bits == 32); break;
    case Compression::rle8:
    case Compression::rle4:
        require(bits == (header.compression == Compression::rle8 ? 8U : 4U));
        walkRuns(file, header);
        return;
    default: throw Unreadable{};
    }
    const std::int64_t rowBytes = (header.width * bits + 31) / 32 * 4;
    require(header.height <= INT64_MAX / 2 / rowBytes);
    file.reach(header.pixelsAt + rowBytes * header.height);
}

// PNG ----------------------------------------------------------------------------------------------------------------

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";

constexpr std::uint32_t chunkName(const char (&name)[5])
{
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i) {
        code = code << 8U | static_cast<unsigned char>(name[i]);
    }
    return code;
}

void checkPng(const Bytes& file, Finding& finding)
{
    constexpr std::int64_t firstChunk = 8;
    for (std::int64_t at = firstChunk;;) {
        const std::uint32_t length = file.big32(at);
        const std::uint32_t name = file.big32(at + 4);
        require(length <= INT32_MAX && (at == firstChunk) == (name == chunkName("IHDR")));
        if (at == firstChunk) {
            finding.width = file.big32(at + 8);
            finding.height = file.big32(at + 12);
        }
        at += 12 + std::int64_t{length};
        file.reach(at);
        if (name == chunkName("IEND")) {
            return;
        }
    }
}

// JPEG ---------------------------------------------------------------------------------------------------------------

namespace marker {
constexpr std::uint32_t stuffing = 0x00; ///< an FF of the compressed pixels
constexpr std::uint32_t temporary = 0x01;
constexpr std::uint32_t huffmanTables = 0xC4;
constexpr std::uint32_t extension = 0xC8;
constexpr std::uint32_t arithmeticTables = 0xCC;
constexpr std::uint32_t firstRestart = 0xD0;
constexpr std::uint32_t start = 0xD8;
constexpr std::uint32_t end = 0xD9;
constexpr std::uint32_t scan = 0xDA;
} // namespace marker

bool isFrame(std::uint32_t code)
{
    return code >= 0xC0 && code <= 0xCF && code != marker::huffmanTables && code != marker::extension &&
           code != marker::arithmeticTables;
}

bool standsAlone(std::uint32_t code)
{
    return code == marker::stuffing || code == marker::temporary ||
           (code >= marker::firstRestart && code <= marker::start);
}

/// From marker to marker. What lies between two segments is compressed pixels or does not matter.
void checkJpeg(const Bytes& file, Finding& finding)
{
    bool scanned = false;
    for (std::int64_t at = 0;;) {
        at = file.find('\xFF', at);
        while (file.u8(at) == 0xFF) { // any number of them may stand before a marker
            ++at;
        }
        const std::uint32_t code = file.u8(at++);
        if (code == marker::end) {
            require(scanned);
            return;
        }
        if (standsAlone(code)) {
            continue;
        }
        const std::uint32_t length = file.big16(at);
        require(length >= 2);
        if (isFrame(code)) {
            finding.height = file.big16(at + 3);
            finding.width = file.big16(at + 5);
        }
        scanned = scanned || code == marker::scan;
        at += length;
    }
}

// GIF ----------------------------------------------------------------------------------------------------------------

std::int64_t colorTableBytes(std::uint32_t flags)
{
    return (flags & 0x80U) != 0 ? 3LL << ((flags & 7U) + 1) : 0;
}

/// Up to the end of the first picture; those of an animation that follow it are not shown.
void checkGif(const Bytes& file, Finding& finding)
{
    finding.width = file.little16(6);
    finding.height = file.little16(8);
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

void checkContents(std::string_view bytes, Finding& finding)
{
    const Bytes file(bytes);
    if (bytes.starts_with("BM")) {
        checkBmp(file, finding);
    } else if (bytes.starts_with(pngSignature)) {
        checkPng(file, finding);
    } else if (bytes.starts_with("\xFF\xD8\xFF")) {
        checkJpeg(file, finding);
    } else if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) {
        checkGif(file, finding);
    } else {
        return;
    }
    finding.state = State::complete;
}

} // namespace

Finding check(std::string_view bytes)
{
    Finding finding;
    try {
        checkContents(bytes, finding);
    } catch (const CutShort&) {
        finding.state = State::cutShort;
    } catch (const Unreadable&) {
        finding.state = State::unreadable;
    }
    return finding;
}

} // namespace picture
