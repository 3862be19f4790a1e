#pragma once

#include <cstdint>
#include <string_view>

namespace schemlet {

/// Reads the bytes of a picture file.
namespace picture {

/// Thrown if the file ends before the picture does.
struct CutShort {};

/// Thrown if the headers make no sense.
struct Unreadable {};

inline void require(bool valid)
{
    if (!valid) {
        throw Unreadable{};
    }
}

/// Reads numbers from the file. Places are 0 or more; a place beyond the end throws CutShort. Places have 64 bits, so
/// that sums of a few 32-bit numbers from a file do not overflow.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}

    [[nodiscard]] std::int64_t size() const { return static_cast<std::int64_t>(m_bytes.size()); }

    /// Throws CutShort if the file ends before this place.
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

    /// The next place of this byte. Throws CutShort if there is none.
    [[nodiscard]] std::int64_t find(char byte, std::int64_t from) const
    {
        const std::size_t found = m_bytes.find(byte, static_cast<std::size_t>(from));
        if (found == std::string_view::npos) {
            throw CutShort{};
        }
        return static_cast<std::int64_t>(found);
    }

private:
    std::string_view m_bytes;
};

} // namespace picture

} // namespace schemlet
