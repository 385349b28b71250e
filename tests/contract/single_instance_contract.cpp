#include "tests/contract/single_instance_contract.h"

namespace zelvane::test {
namespace {

TEST_P(SingleInstanceContract, TheFirstInstanceGetsTheClaim) { EXPECT_TRUE(instance.claim()); }

TEST_P(SingleInstanceContract, WhileAnotherInstanceRunsTheClaimIsRefused) {
  bed->startAnother();

  EXPECT_FALSE(instance.claim());
}

TEST_P(SingleInstanceContract, AKilledInstanceLeavesTheClaimToTheNext) {
  bed->startAnother();
  bed->killTheOther();

  EXPECT_TRUE(instance.claim());
}

}  // namespace
}  // namespace zelvane::test
