// Numbers and their text forms. Numbers travel through the program as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavr {

/// The leading number of a text as a double, 0 without one: blanks are skipped
/// wherever they stand, the decimal sign is ".", an exponent and "&H" count.
double Val(std::string_view text);

/// A number as text: at most 15 significant digits, no leading blank, no
/// grouping; from 1E+15 on with an exponent. `decimal` is the locale's sign.
std::string numberText(double value, char decimal = '.');

/// As numberText, a positive number with a leading blank; the sign is ".".
std::string Str(double value);

/// Format(value, "0.000"): three decimals, half away from zero, the locale's
/// sign.
std::string formatThousandths(double value, char decimal);

/// The integer that a settings text converts to. Raises 13 for a text that is
/// no number (the empty text too) and 6 when it does not fit 16 bits.
int toInteger(std::string_view text);

/// The same for 32 bits.
std::int32_t toLong(std::string_view text);

/// Hexadecimal digits of a number without leading zeros, upper case.
std::string Hex(std::uint32_t value);

}  // namespace tavr
