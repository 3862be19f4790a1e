#include "platform/picture_check.h"

#include <cstdlib>
#include <memory>
#include <string>

// Any bytes get a finding that makes sense, and a picture that is all there stays so whatever follows it.

namespace {

using picture::Finding;
using picture::State;

void demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// From a copy of their own, so that a sanitizer sees every step beyond the last byte.
Finding check(std::string_view bytes)
{
    const auto copy = std::make_unique<char[]>(bytes.size());
    bytes.copy(copy.get(), bytes.size());
    return picture::check({copy.get(), bytes.size()});
}

/// A BMP's runs may end with the file instead of their mark; what follows it then counts.
bool mayEndWithFile(std::string_view bytes)
{
    constexpr std::size_t compression = 30;
    return bytes.starts_with("BM") && bytes.size() > compression &&
           (bytes[compression] == 1 || bytes[compression] == 2);
}

bool same(const Finding& a, const Finding& b)
{
    return a.state == b.state && a.width == b.width && a.height == b.height && a.bytesPerPixel == b.bytesPerPixel;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Finding finding = check(bytes);
    demand(same(finding, check(bytes)));
    demand(finding.bytesPerPixel >= 4 && finding.bytesPerPixel <= 4 + 2 * 255);
    demand(finding.height >= 0 && finding.width >= INT32_MIN && finding.width <= UINT32_MAX);
    demand(finding.state != State::unknownFormat || (finding.width == 0 && finding.height == 0));
    if (!mayEndWithFile(bytes)) {
        demand(finding.state != State::complete || check(std::string(bytes) + "behind").state == State::complete);
        demand(finding.state == State::complete || check(bytes.substr(0, size / 2)).state != State::complete);
    }
    return 0;
}
