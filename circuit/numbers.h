#pragma once

#include <string_view>

// Every conversion from text to number. The decimal mark is a point, whatever the locale.

/// The number that a text is: blanks around it are ignored; a sign, digits with at most one decimal point and an
/// exponent, nothing else. Throws typeMismatch for any other text and overflow beyond the range of a double.
[[nodiscard]] double toNumber(std::string_view text);

/// The same number; throws overflow if it is none any more.
[[nodiscard]] double checked(double result);
