#include "platform/picture_check.h"

#include "platform/bmp_check.h"
#include "platform/picture_bytes.h"

namespace picture {

namespace {

// PNG ----------------------------------------------------------------------------------------------------------------

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";

constexpr std::uint32_t chunkName(std::string_view name)
{
    std::uint32_t code = 0;
    for (const char letter : name) {
        code = code << 8U | static_cast<unsigned char>(letter);
    }
    return code;
}

/// Texts and the like that a decoder keeps beside the picture, be they ever so many or inflate to megabytes each.
class PngNotes {
public:
    void add(std::uint32_t name, std::uint32_t length)
    {
        const bool compressed = name == chunkName("zTXt") || name == chunkName("iTXt");
        if (compressed || name == chunkName("tEXt") || name == chunkName("sPLT")) {
            m_bytes += length;
            m_compressed += compressed ? 1 : 0;
        }
        require(m_bytes <= 8'000'000 && m_compressed <= 16);
    }

private:
    std::int64_t m_bytes = 0;
    int m_compressed = 0;
};

void checkPng(const Bytes& file, Finding& finding)
{
    constexpr std::int64_t firstChunk = 8;
    PngNotes notes;
    for (std::int64_t at = firstChunk;;) {
        const std::uint32_t length = file.big32(at);
        const std::uint32_t name = file.big32(at + 4);
        require(length <= INT32_MAX && (at == firstChunk) == (name == chunkName("IHDR")));
        if (at == firstChunk) {
            finding.width = file.big32(at + 8);
            finding.height = file.big32(at + 12);
            finding.bytesPerPixel = file.u8(at + 16) == 16 ? 12 : 5; // 16 bits a channel are decoded as such first
        }
        notes.add(name, length);
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

struct JpegFrame {
    std::uint32_t components = 0;
    bool progressive = false;
};

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

/// One of a JPEG's passes over its pixels. A decoder must keep 16 bits for each sample where one pass is not all.
void startScan(const Bytes& file, std::int64_t at, Finding& finding, const JpegFrame& frame)
{
    if (frame.progressive || file.u8(at + 2) < frame.components) {
        finding.bytesPerPixel = frame.components == 1 ? 5 : 4 + 2 * static_cast<int>(frame.components);
    }
}

/// From marker to marker. What lies between two segments is compressed pixels or does not matter.
void checkJpeg(const Bytes& file, Finding& finding)
{
    constexpr int mostScans = 64; // some ten are usual, thousands would only keep a decoder busy
    JpegFrame frame;
    int scans = 0;
    for (std::int64_t at = 0;;) {
        at = file.find('\xFF', at);
        while (file.u8(at) == 0xFF) { // any number of them may stand before a marker
            ++at;
        }
        const std::uint32_t code = file.u8(at++);
        if (code == marker::end) {
            require(scans > 0 && scans <= mostScans);
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
            frame = {file.u8(at + 7), (code & 3U) == 2};
        } else if (code == marker::scan) {
            startScan(file, at, finding, frame);
            ++scans;
        }
        at += length;
    }
}

// GIF and XBM --------------------------------------------------------------------------------------------------------

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
        if (!last && file.u8(at + 1) == 0xF9 && (file.u8(at + 3) >> 2U & 7U) == 3) {
            finding.bytesPerPixel = 8; // wants to be undone later, and so a decoder keeps what was there before
        }
        at += last ? 11 + colorTableBytes(file.u8(at + 9)) : 2;
        for (std::uint32_t length = file.u8(at++); length != 0; length = file.u8(at++)) {
            at += length;
        }
    }
}

/// C source whose one array ends so.
void checkXbm(const Bytes& file)
{
    (void)file.find('}', 0);
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
    } else if (bytes.starts_with("#define")) {
        checkXbm(file);
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
