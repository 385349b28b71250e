#include <filesystem>

#include "platform/linux/linux_identity.h"
#include "tests/contract/identity_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::LinuxIdentity;

class LinuxIdentityBed : public IdentityBed {
 public:
  platform::Identity& identity() override { return identity_; }

 private:
  ThrowAwayFolder folder_;
  LinuxIdentity identity_{environmentIn(folder_)};
};

std::unique_ptr<IdentityBed> makeLinuxIdentityBed() { return std::make_unique<LinuxIdentityBed>(); }

INSTANTIATE_TEST_SUITE_P(Linux, IdentityContract, testing::Values(makeLinuxIdentityBed));

TEST(LinuxIdentity, FolderAndNameAreThoseOfTheRunningExecutable) {
  ThrowAwayFolder home;
  const LinuxIdentity identity(environmentIn(home));

  EXPECT_TRUE(
      fs::equivalent(identity.programFolder() + "/" + identity.executableName(), "/proc/self/exe"));
}

TEST(LinuxIdentity, TheWorkingFolderDoesNotMatter) {
  ThrowAwayFolder home;
  const LinuxIdentity here(environmentIn(home));

  ChildProcess child([&](const Say& say) {
    fs::current_path("/");
    say(LinuxIdentity(environmentIn(home)).programFolder());
  });

  EXPECT_EQ(child.hearLine(), here.programFolder());
}

TEST(LinuxIdentity, TheDataFolderIsTheUsersAndNeedNotExist) {
  ThrowAwayFolder home;
  const LinuxIdentity identity(environmentIn(home));

  EXPECT_EQ(identity.dataFolder(), home / "home/.local/share/zelvane");
  EXPECT_FALSE(home.has("home"));
}

}  // namespace
}  // namespace zelvane::test
