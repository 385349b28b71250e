#include "core/controls/up_down.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace zelvane::controls {

void UpDown::step(int direction) {
  if (!reachable()) {
    return;
  }
  const std::string& text = buddy_.text();
  int number = lowest_;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    number = lowest_;
  }
  number = std::clamp(number, lowest_, highest_);
  buddy_.setText(std::to_string(std::clamp(number + direction, lowest_, highest_)));
}

}  // namespace zelvane::controls
