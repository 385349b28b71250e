#include "platform/memory/memory_process_end.h"
#include "tests/contract/process_end_contract.h"

namespace zelvane::test {
namespace {

class MemoryProcessEndBed : public ProcessEndBed {
 public:
  std::string run(const Program& program) override {
    std::string said;
    try {
      program(process_, [&](const std::string& line) { said += line + "\n"; });
      status_ = -1;
    } catch (const platform::ProcessEnded&) {
      status_ = 0;
    }
    return said;
  }
  int status() const override { return status_; }

 private:
  platform::MemoryProcessEnd process_;
  int status_ = -1;
};

std::unique_ptr<ProcessEndBed> makeMemoryProcessEndBed() {
  return std::make_unique<MemoryProcessEndBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, ProcessEndContract, testing::Values(makeMemoryProcessEndBed));

TEST(MemoryProcessEnd, RemembersThatItWasCalled) {
  platform::MemoryProcessEnd process;
  EXPECT_FALSE(process.ended());

  EXPECT_THROW(process.end(), platform::ProcessEnded);

  EXPECT_TRUE(process.ended());
}

}  // namespace
}  // namespace zelvane::test
