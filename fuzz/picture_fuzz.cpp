#include "platform/files/picture_check.h"

#include <cstdlib>
#include <string>

namespace schemlet {

// A whole picture stays whole whatever follows it, and half of anything else is not whole.

namespace {

void demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

bool isWhole(std::string_view bytes)
{
    return picture::check(bytes) == picture::State::whole;
}

/// A BMP's runs may end with the file instead of their mark; what follows it then counts.
bool mayEndWithFile(std::string_view bytes)
{
    constexpr std::size_t compression = 30;
    return bytes.starts_with("BM") && bytes.size() > compression &&
           (bytes[compression] == 1 || bytes[compression] == 2);
}

} // namespace

} // namespace schemlet

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace schemlet;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const bool whole = isWhole(bytes);
    if (!mayEndWithFile(bytes)) {
        demand(!whole || isWhole(std::string(bytes) + "behind"));
        demand(whole || !isWhole(bytes.substr(0, size / 2)));
    }
    return 0;
}
