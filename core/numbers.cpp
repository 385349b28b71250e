#include "core/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "platform/error.h"

namespace zelvane::core {

using platform::Error;
using platform::ErrorNumber;

double toNumber(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    throw Error(ErrorNumber::typeMismatch);
  }
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      throw Error(ErrorNumber::typeMismatch);
    }
  }
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) {
    throw Error(ErrorNumber::overflow);
  }
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
    throw Error(ErrorNumber::typeMismatch);
  }
  return number;
}

std::int16_t toInteger(double number) {
  double whole = std::floor(number);
  const double rest = number - whole;
  if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0)) {
    whole += 1;
  }
  if (whole < std::numeric_limits<std::int16_t>::min() ||
      whole > std::numeric_limits<std::int16_t>::max()) {
    throw Error(ErrorNumber::overflow);
  }
  return static_cast<std::int16_t>(whole);
}

}  // namespace zelvane::core
