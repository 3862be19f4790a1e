#include "circuit/numbers.h"
#include "platform/runtime_error.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <regex>

namespace schemlet {

// Compares the reading of numbers with the C library, and with a regular expression for what is a number.

namespace {

void demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Nothing if the number is too large, and not-a-number if the text is none.
template <double (*convert)(std::string_view)> std::optional<double> converted(std::string_view text)
{
    try {
        return convert(text);
    } catch (const RuntimeError& error) {
        demand(error.fault == Fault::overflow || error.fault == Fault::typeMismatch);
        return error.fault == Fault::overflow ? std::nullopt : std::optional(std::nan(""));
    }
}

} // namespace

} // namespace schemlet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace schemlet;
    static const std::regex leading(R"(^[ \t\n\r]*([+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?))");
    static const std::regex trailing(R"([ \t\n\r]*)");
    if (size > 400) {
        return 0; // regular expressions recurse for every character
    }
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    std::smatch match;
    const bool found = std::regex_search(text, match, leading, std::regex_constants::match_continuous);
    const bool all = found && std::regex_match(match.suffix().str(), trailing);
    const std::optional<double> read = converted<leadingNumber>(text);
    const double value =
        found ? std::strtod(match[1].str().c_str(), nullptr) : 0; // in the locale C: nothing sets another
    demand(read == (std::isinf(value) ? std::nullopt : std::optional(value)));
    const std::optional<double> whole = converted<toNumber>(text);
    demand(all ? whole == read : whole && std::isnan(*whole));
    return 0;
}
