// Numbers read from stored texts, which users edit by hand.
#pragma once

#include <cstdint>
#include <string_view>

namespace zelvane::core {

// A decimal number with blanks around it allowed, with or without sign, fraction and exponent. The
// decimal sign is the point, whatever the locale. Anything else is typeMismatch.
double toNumber(std::string_view text);

// The nearest whole number, halves to the even one. One that does not fit into 16 bits with a sign
// (-32,768 to 32,767) is overflow.
std::int16_t toInteger(double number);

inline std::int16_t toInteger(std::string_view text) { return toInteger(toNumber(text)); }

}  // namespace zelvane::core
