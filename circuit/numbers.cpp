#include "circuit/numbers.h"

#include "platform/runtime_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>

namespace schemlet {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r'; // pasted texts often bring a line end
}

std::size_t digitsAt(std::string_view text, std::size_t from)
{
    const auto rest = text.substr(from);
    return static_cast<std::size_t>(std::ranges::find_if_not(rest, isDigit) - rest.begin());
}

std::size_t signAt(std::string_view text, std::size_t from)
{
    return from < text.size() && (text[from] == '+' || text[from] == '-') ? 1 : 0;
}

/// The length of the longest number at the start of a text; 0 if there is none.
std::size_t numberLength(std::string_view text)
{
    std::size_t length = signAt(text, 0);
    const std::size_t whole = digitsAt(text, length);
    length += whole;
    std::size_t places = 0;
    if (length < text.size() && text[length] == '.') {
        places = digitsAt(text, length + 1);
        length += 1 + places;
    }
    if (whole + places == 0) {
        return 0;
    }
    if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
        const std::size_t sign = signAt(text, length + 1);
        const std::size_t digits = digitsAt(text, length + 1 + sign);
        length += digits == 0 ? 0 : 1 + sign + digits;
    }
    return length;
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view withoutBlanks(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// Converts a text that numberLength() accepts. Unlike from_chars, a stream distinguishes too large from too small.
double parsed(std::string_view number)
{
    std::istringstream in{std::string(number)};
    in.imbue(std::locale::classic());
    double value = 0;
    in >> value;
    if (in.fail()) {
        throw RuntimeError(Fault::overflow, "Overflow\n\nThe number is too large.");
    }
    return value;
}

} // namespace

double toNumber(std::string_view text)
{
    const std::string_view number = withoutBlanks(text);
    if (number.empty() || numberLength(number) != number.size()) {
        throw RuntimeError(Fault::typeMismatch,
                           "Type mismatch\n\nThe value must be a number such as 10, 0.5 or 4.7E-06.");
    }
    return parsed(number);
}

double leadingNumber(std::string_view text)
{
    const std::string_view rest = withoutLeadingBlanks(text);
    const std::size_t length = numberLength(rest);
    return length == 0 ? 0 : parsed(rest.substr(0, length));
}

std::string toText(double number)
{
    constexpr int digits = 15;      // a double keeps any decimal number of this length
    std::array<char, 32> written{}; // a sign, 15 digits, a point, four leading zeros or an exponent
    char* const end =
        std::to_chars(written.begin(), written.end(), number == 0 ? 0 : number, std::chars_format::general, digits).ptr;
    std::replace(written.begin(), end, 'e', 'E');
    return {written.begin(), end};
}

double checked(double result)
{
    if (!std::isfinite(result)) {
        throw RuntimeError(Fault::overflow, "Overflow\n\nThe result would be too large.");
    }
    return result;
}

double squareRoot(double number)
{
    if (number < 0) {
        throw RuntimeError(Fault::invalidArgument,
                           "Invalid argument\n\nA negative number has no square root. Were values of opposite signs "
                           "entered?");
    }
    return std::sqrt(number);
}

} // namespace schemlet
