#include "platform/memory/faulty_profile_file.h"
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

// With no fault set a decorator is like what it wraps.
class FaultyProfileFileBed : public MemoryProfileFileBed {
 public:
  platform::ProfileFile& profile() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyProfileFile faulty_{MemoryProfileFileBed::profile(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, ProfileFileContract,
                         testing::Values([]() -> std::unique_ptr<ProfileFileBed> {
                           return std::make_unique<FaultyProfileFileBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
