#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "platform/windows/windows_process_end.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/process_end_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

using platform::WindowsProcessEnd;

class WindowsProcessEndBed : public ProcessEndBed {
 public:
  std::string run(const Program& program) override {
    ChildProcess child([&](const Say& say) {
      WindowsProcessEnd process;
      program(process, say);
      endWith(kWentOn);
    });
    std::string said = child.hearAll();
    const std::uint32_t status = child.wait();
    status_ = status == kWentOn ? -1 : static_cast<int>(status);
    return said;
  }
  int status() const override { return status_; }

 private:
  static constexpr std::uint32_t kWentOn = 99;

  int status_ = -1;
};

std::unique_ptr<ProcessEndBed> makeWindowsProcessEndBed() {
  return std::make_unique<WindowsProcessEndBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, ProcessEndContract, testing::Values(makeWindowsProcessEndBed));

class SaysGoodbye {
 public:
  explicit SaysGoodbye(Say say) : say_(std::move(say)) {}
  ~SaysGoodbye() { say_("unwound"); }

 private:
  Say say_;
};

TEST(WindowsProcessEnd, NothingIsUnwound) {
  ChildProcess child([](const Say& say) {
    const SaysGoodbye goodbye(say);
    WindowsProcessEnd().end();
  });

  EXPECT_EQ(child.hearAll(), "");
  EXPECT_EQ(child.wait(), 0U);
}

TEST(WindowsProcessEnd, NoHandlerOfTheExitRuns) {
  ChildProcess child([](const Say&) {
    std::atexit([] { endWith(98); });
    WindowsProcessEnd().end();
  });

  EXPECT_EQ(child.wait(), 0U);
}

TEST(WindowsProcessEnd, NothingIsFlushed) {
  ChildProcess child([](const Say& say) {
    const ThrowAwayFolder own;
    std::FILE* file = std::fopen((own / "file").c_str(), "w");
    std::fputs("still in the buffer", file);
    say(own.path().string());
    WindowsProcessEnd().end();
  });

  const std::filesystem::path left = child.hearLine();
  EXPECT_EQ(child.wait(), 0U);
  EXPECT_EQ(std::filesystem::file_size(left / "file"), 0U);
  std::filesystem::remove_all(left);
}

}  // namespace
}  // namespace zelvane::test
