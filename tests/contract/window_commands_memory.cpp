#include <algorithm>

#include "platform/memory/memory_window.h"
#include "tests/contract/window_commands_contract.h"

namespace zelvane::test {
namespace {

class MemoryWindowBed : public WindowCommandsBed {
 public:
  platform::WindowCommands& window() override { return window_; }
  bool isForward() override { return timesTold("bringForward") > 0; }
  bool isActive() override { return timesTold("activate") > 0; }

  std::string focused() const override {
    constexpr std::string_view kFocus = "focus ";
    const auto& calls = window_.calls();
    const auto last = std::find_if(calls.rbegin(), calls.rend(), [&](const std::string& call) {
      return call.starts_with(kFocus);
    });
    return last == calls.rend() ? std::string() : last->substr(kFocus.size());
  }

  std::ptrdiff_t paintings(const std::string& controlName) const override {
    return timesTold("repaint " + controlName);
  }

 private:
  std::ptrdiff_t timesTold(const std::string& call) const {
    return std::ranges::count(window_.calls(), call);
  }

  platform::MemoryWindow window_;
};

std::unique_ptr<WindowCommandsBed> makeMemoryWindowBed() {
  return std::make_unique<MemoryWindowBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, WindowCommandsContract, testing::Values(makeMemoryWindowBed));

}  // namespace
}  // namespace zelvane::test
