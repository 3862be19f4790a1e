#include "platform/files/bmp_check.h"

#include <algorithm>
#include <cstdlib>

namespace schemlet {

namespace picture {

namespace {

enum class Compression : std::uint32_t { none, rle8, rle4, bitFields };

struct BmpHeader {
    std::int64_t width = 0;
    std::int64_t height = 0; ///< never negative, because the order of the rows does not matter here
    std::uint32_t bitsPerPixel = 0;
    Compression compression = Compression::none;
    std::int64_t dataBytes = 0; ///< of compressed pixels; 0 if unknown
    std::int64_t pixelsAt = 0;
};

constexpr std::int64_t fileHeader = 14;
constexpr std::uint32_t coreHeader = 12; ///< of the first BMPs
constexpr std::uint32_t infoHeader = 40;

std::int64_t paletteBytes(const BmpHeader& header, std::uint32_t used, int entryBytes)
{
    if (header.bitsPerPixel > 8) {
        return 0;
    }
    require(used <= 256);
    return std::int64_t{used != 0 ? used : 1U << header.bitsPerPixel} * entryBytes;
}

BmpHeader readHeader(const Bytes& file)
{
    BmpHeader header;
    const std::uint32_t infoBytes = file.little32(fileHeader);
    std::int64_t end = fileHeader + infoBytes;
    if (infoBytes == coreHeader) {
        header.width = file.little16(18);
        header.height = file.little16(20);
        header.bitsPerPixel = file.little16(24);
        end += paletteBytes(header, 0, 3);
    } else {
        require(infoBytes >= infoHeader && infoBytes <= 124);
        header.width = static_cast<std::int32_t>(file.little32(18));
        header.height = std::abs(std::int64_t{static_cast<std::int32_t>(file.little32(22))});
        header.bitsPerPixel = file.little16(28);
        header.compression = Compression{file.little32(30)};
        header.dataBytes = file.little32(34);
        const bool masksBehind = infoBytes == infoHeader && header.compression == Compression::bitFields;
        end += paletteBytes(header, file.little32(46), 4) + (masksBehind ? 12 : 0);
    }
    require(header.width > 0 && header.height > 0);
    header.pixelsAt = std::max<std::int64_t>(end, file.little32(10));
    return header;
}

/// Walks over runs of pixels to the mark that ends the picture, or to the end of its last row.
void walkRuns(const Bytes& file, const BmpHeader& header)
{
    const bool nibbles = header.compression == Compression::rle4;
    std::int64_t at = header.pixelsAt;
    for (std::int64_t row = 0; row < header.height;) {
        if (header.dataBytes != 0 && at >= header.pixelsAt + header.dataBytes && at == file.size()) {
            return; // the mark is missing, but the data is as long as the header says
        }
        const std::uint32_t count = file.u8(at);
        const std::uint32_t value = file.u8(at + 1);
        at += 2;
        if (count != 0) {
            continue; // a run of pixels of one colour
        }
        switch (value) {
        case 0: ++row; break;
        case 1: return;
        case 2:
            row += file.u8(at + 1);
            at += 2;
            break;
        default: // uncompressed pixels, padded to an even number of bytes
            at += nibbles ? (value + 3) / 4 * 2LL : (value + 1) / 2 * 2LL;
        }
    }
}

void reachLastRow(const Bytes& file, const BmpHeader& header)
{
    const std::int64_t rowBytes = (header.width * header.bitsPerPixel + 31) / 32 * 4;
    if (header.height > (file.size() - header.pixelsAt) / rowBytes) { // a product could overflow
        throw CutShort{};
    }
}

} // namespace

void checkBmp(const Bytes& file)
{
    const BmpHeader header = readHeader(file);
    const std::uint32_t bits = header.bitsPerPixel;
    switch (header.compression) {
    case Compression::none:
        require(bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32);
        return reachLastRow(file, header);
    case Compression::bitFields: require(bits == 16 || bits == 32); return reachLastRow(file, header);
    case Compression::rle8: require(bits == 8); return walkRuns(file, header);
    case Compression::rle4: require(bits == 4); return walkRuns(file, header);
    }
    throw Unreadable{};
}

} // namespace picture

} // namespace schemlet
