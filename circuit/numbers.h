#pragma once

#include <string>
#include <string_view>

// Every conversion between text and number. The decimal mark is a point, whatever the locale.

/// The number that a text is: blanks around it are ignored; a sign, digits with at most one decimal point and an
/// exponent, nothing else. Throws typeMismatch for any other text and overflow beyond the range of a double.
[[nodiscard]] double toNumber(std::string_view text);

/// The number with at most 15 significant digits and no trailing zeros, as "1E+15" from fifteen digits before the point
/// on and as "1E-05" from five places behind it.
[[nodiscard]] std::string toText(double number);

/// The same number; throws overflow if it is none any more.
[[nodiscard]] double checked(double result);
