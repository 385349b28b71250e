// How a test waits for another program: for a condition, and not for ever.
#pragma once

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

namespace zelvane::test {

// Far more than anything takes, on a busy machine too.
inline constexpr std::chrono::seconds kPatience(60);

// Asks again and again until the answer is one (true, a value, a handle), and returns it. Throws
// after a minute, and says what it waited for.
template <typename Ask>
auto waitUntil(const std::string& what, Ask ask) {
  constexpr std::chrono::milliseconds kPause(2);
  const auto end = std::chrono::steady_clock::now() + kPatience;
  for (;;) {
    if (auto answer = ask()) return answer;
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("in vain: " + what);
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace zelvane::test
