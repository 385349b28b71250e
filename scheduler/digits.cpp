#include "scheduler/digits.h"

#include "platform/error.h"

namespace zelvane::scheduler {

int digitsAt(std::string_view text, std::size_t at, std::size_t count) {
  int number = 0;
  for (std::size_t place = at; place < at + count; ++place) {
    if (place >= text.size() || text[place] < '0' || text[place] > '9') {
      throw platform::Error(platform::ErrorNumber::typeMismatch);
    }
    number = number * 10 + (text[place] - '0');
  }
  return number;
}

}  // namespace zelvane::scheduler
