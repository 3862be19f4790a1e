#pragma once

#include <string>
#include <string_view>

namespace schemlet {

// Every conversion between texts and numbers. The decimal mark is a point, whatever the locale.

/// The number that a text is: blanks around it are ignored; a sign, digits with at most one decimal point and an
/// exponent, nothing else. Throws typeMismatch for any other text and overflow beyond the range of a double.
[[nodiscard]] double toNumber(std::string_view text);

/// The longest number at the start of a text, blanks before it ignored; 0 if there is none. Throws overflow.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The general format of a finite number: at most 15 significant digits and nothing that says nothing, such as "0.2",
/// "-4", "1E+15" or "1E-05".
[[nodiscard]] std::string toText(double number);

/// The same number; throws overflow if it is none any more.
[[nodiscard]] double checked(double result);

/// Throws invalidArgument below 0.
[[nodiscard]] double squareRoot(double number);

} // namespace schemlet
