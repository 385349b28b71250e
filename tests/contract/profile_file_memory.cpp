#include "platform/memory/memory_profile_file.h"
#include "tests/contract/profile_file_contract.h"

namespace zelvane::test {
namespace {

class MemoryProfileFileBed : public ProfileFileBed {
 public:
  platform::ProfileFile& profile() override { return profile_; }
  std::string content() const override { return profile_.content(); }
  void setContent(const std::string& content) override { profile_.setContent(content); }
  void makeUnwritable() override { profile_.refuseWrites(); }

 private:
  platform::MemoryProfileFile profile_;
};

std::unique_ptr<ProfileFileBed> makeMemoryProfileFileBed() {
  return std::make_unique<MemoryProfileFileBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, ProfileFileContract, testing::Values(makeMemoryProfileFileBed));

}  // namespace
}  // namespace zelvane::test
