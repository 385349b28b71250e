#include <optional>
#include <string>

#include "platform/windows/windows_single_instance.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/single_instance_contract.h"

namespace zelvane::test {
namespace {

using platform::WindowsSingleInstance;

constexpr const char* kYes = "claimed";
constexpr const char* kNo = "refused";

// Another instance, started now; it says whether it got the claim and goes on running.
class OtherInstance {
 public:
  OtherInstance()
      : process_([](const Say& say) {
          WindowsSingleInstance instance(nameOfThisTest());
          say(instance.claim() ? kYes : kNo);
          stayUntilKilled();
        }),
        said_(process_.hearLine()) {}

  const std::string& said() const { return said_; }
  void kill() { process_.kill(); }

 private:
  ChildProcess process_;
  std::string said_;
};

class WindowsSingleInstanceBed : public SingleInstanceBed {
 public:
  platform::SingleInstance& instance() override { return instance_; }
  void startAnother() override { other_.emplace(); }
  void killTheOther() override { other_->kill(); }

 private:
  WindowsSingleInstance instance_{nameOfThisTest()};
  std::optional<OtherInstance> other_;
};

std::unique_ptr<SingleInstanceBed> makeWindowsSingleInstanceBed() {
  return std::make_unique<WindowsSingleInstanceBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, SingleInstanceContract,
                         testing::Values(makeWindowsSingleInstanceBed));

// The claims are made before the assertions, because the second process makes them once more.
class WindowsSingleInstanceTest : public testing::Test {
 protected:
  WindowsSingleInstance instance{nameOfThisTest()};
};

TEST_F(WindowsSingleInstanceTest, AnotherProcessIsRefusedWhileThisOneHoldsTheClaim) {
  const bool claimed = instance.claim();
  OtherInstance other;

  EXPECT_TRUE(claimed);
  EXPECT_EQ(other.said(), kNo);
}

TEST_F(WindowsSingleInstanceTest, ARefusedInstanceTakesNothingFromTheHolder) {
  const bool claimed = instance.claim();
  OtherInstance refused;
  refused.kill();
  OtherInstance next;

  EXPECT_TRUE(claimed);
  EXPECT_EQ(next.said(), kNo);
}

TEST_F(WindowsSingleInstanceTest, ARefusedInstanceDoesNotKeepTheClaimFromTheNext) {
  OtherInstance holder;
  const bool refused = !instance.claim();
  holder.kill();
  WindowsSingleInstance next(nameOfThisTest());

  EXPECT_TRUE(refused);
  EXPECT_TRUE(next.claim());
}

// Windows refuses to open such a mutex, Wine opens it all the same: the answer is one.
TEST_F(WindowsSingleInstanceTest, AnInstanceWithRightsThatThisOneLacksIsOneAsWell) {
  ChildProcess holder([](const Say& say) {
    SECURITY_DESCRIPTOR rule{};
    ACL none{};
    InitializeAcl(&none, sizeof(none), ACL_REVISION);
    InitializeSecurityDescriptor(&rule, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&rule, TRUE, &none, FALSE);
    SECURITY_ATTRIBUTES closed{sizeof(closed), &rule, FALSE};
    const HANDLE mutex =
        CreateMutexW(&closed, FALSE, platform::nameForThisUser(nameOfThisTest()).c_str());
    say(mutex == nullptr ? kNo : kYes);
    stayUntilKilled();
  });
  const std::string held = holder.hearLine();

  EXPECT_EQ(held, kYes);
  EXPECT_FALSE(instance.claim());
}

TEST_F(WindowsSingleInstanceTest, AProgramOfAnotherNameIsAnother) {
  WindowsSingleInstance other(nameOfThisTest() + "-other");

  EXPECT_TRUE(instance.claim());
  EXPECT_TRUE(other.claim());
}

}  // namespace
}  // namespace zelvane::test
