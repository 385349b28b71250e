#include "platform/memory/memory_identity.h"
#include "tests/contract/identity_contract.h"

namespace zelvane::test {
namespace {

class MemoryIdentityBed : public IdentityBed {
 public:
  platform::Identity& identity() override { return identity_; }

 private:
  platform::MemoryIdentity identity_;
};

std::unique_ptr<IdentityBed> makeMemoryIdentityBed() {
  return std::make_unique<MemoryIdentityBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, IdentityContract, testing::Values(makeMemoryIdentityBed));

TEST(MemoryIdentity, AnswersWhatATestSays) {
  platform::MemoryIdentity identity;
  identity.facts.version.minor = 7;
  identity.facts.programFolder = R"(C:\Program Files\Zelvane)";
  identity.facts.separator = '\\';

  EXPECT_EQ(identity.version().minor, 7);
  EXPECT_EQ(identity.programFolder(), R"(C:\Program Files\Zelvane)");
  EXPECT_EQ(identity.separator(), '\\');
}

}  // namespace
}  // namespace zelvane::test
