#pragma once

#include <string>
#include <string_view>

namespace schemlet {

// Every conversion between texts and numbers. The decimal mark is a point in every locale.

/// Converts a number: an optional sign, digits with at most one decimal point, and an optional exponent. Blanks around
/// it are ignored. Throws RuntimeError: typeMismatch for any other text, overflow beyond the range of a double.
[[nodiscard]] double toNumber(std::string_view text);

/// Converts the longest number at the start of a text, after any blanks. Returns 0 if there is none. Throws
/// RuntimeError(Fault::overflow).
[[nodiscard]] double leadingNumber(std::string_view text);

/// A finite number in the general format: at most 15 significant digits and no trailing zeros, such as "0.2", "-4",
/// "1E+15" or "1E-05".
[[nodiscard]] std::string toText(double number);

/// Returns a finite number unchanged. Throws RuntimeError(Fault::overflow) for any other.
[[nodiscard]] double checked(double result);

/// Throws RuntimeError(Fault::invalidArgument) below 0.
[[nodiscard]] double squareRoot(double number);

} // namespace schemlet
