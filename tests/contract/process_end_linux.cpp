#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/linux_process_end.h"
#include "tests/contract/process_end_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

class LinuxProcessEndBed : public ProcessEndBed {
 public:
  std::string run(const Program& program) override {
    ChildProcess child([&](const Say& say) {
      platform::LinuxProcessEnd process;
      program(process, say);
      _exit(kWentOn);
    });
    std::string said = child.hearAll();
    const int status = child.wait();
    status_ = WIFEXITED(status) && WEXITSTATUS(status) != kWentOn ? WEXITSTATUS(status) : -1;
    return said;
  }
  int status() const override { return status_; }

 private:
  static constexpr int kWentOn = 99;

  int status_ = -1;
};

std::unique_ptr<ProcessEndBed> makeLinuxProcessEndBed() {
  return std::make_unique<LinuxProcessEndBed>();
}

INSTANTIATE_TEST_SUITE_P(Linux, ProcessEndContract, testing::Values(makeLinuxProcessEndBed));

class SaysGoodbye {
 public:
  explicit SaysGoodbye(Say say) : say_(std::move(say)) {}
  ~SaysGoodbye() { say_("unwound"); }

 private:
  Say say_;
};

TEST(LinuxProcessEnd, NothingIsUnwound) {
  ChildProcess child([](const Say& say) {
    const SaysGoodbye goodbye(say);
    platform::LinuxProcessEnd().end();
  });

  EXPECT_EQ(child.hearAll(), "");
}

TEST(LinuxProcessEnd, NoHandlerOfTheExitRuns) {
  ChildProcess child([](const Say&) {
    std::atexit([] { std::abort(); });
    platform::LinuxProcessEnd().end();
  });

  EXPECT_EQ(child.wait(), 0);
}

TEST(LinuxProcessEnd, NothingIsFlushed) {
  ThrowAwayFolder folder;
  ChildProcess child([&](const Say&) {
    std::FILE* file = std::fopen((folder / "file").c_str(), "w");
    std::fputs("still in the buffer", file);
    platform::LinuxProcessEnd().end();
  });

  EXPECT_EQ(child.wait(), 0);
  EXPECT_EQ(folder.read("file"), "");
}

}  // namespace
}  // namespace zelvane::test
