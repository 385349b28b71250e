#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include <unistd.h>

#include "platform/linux/linux_single_instance.h"
#include "tests/contract/single_instance_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Environment;
using platform::LinuxSingleInstance;

constexpr const char* kYes = "claimed";
constexpr const char* kNo = "refused";

// Another instance, started now; it says whether it got the claim and goes on running.
class OtherInstance {
 public:
  explicit OtherInstance(const Environment& environment)
      : process_([&](const Say& say) {
          LinuxSingleInstance instance(environment);
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

class LinuxSingleInstanceBed : public SingleInstanceBed {
 public:
  platform::SingleInstance& instance() override { return instance_; }
  void startAnother() override { other_.emplace(environment_); }
  void killTheOther() override { other_->kill(); }

 private:
  ThrowAwayFolder folder_;
  Environment environment_ = environmentIn(folder_);
  LinuxSingleInstance instance_{environment_};
  std::optional<OtherInstance> other_;
};

std::unique_ptr<SingleInstanceBed> makeLinuxSingleInstanceBed() {
  return std::make_unique<LinuxSingleInstanceBed>();
}

INSTANTIATE_TEST_SUITE_P(Linux, SingleInstanceContract,
                         testing::Values(makeLinuxSingleInstanceBed));

class LinuxSingleInstanceTest : public testing::Test {
 protected:
  bool claim() {
    instance.emplace(environment);
    return instance->claim();
  }
  std::string tmpName() const { return "tmp/zelvane-" + std::to_string(geteuid()); }

  ThrowAwayFolder home;
  Environment environment = environmentIn(home);
  std::optional<LinuxSingleInstance> instance;
};

TEST_F(LinuxSingleInstanceTest, AnotherProcessIsRefusedWhileThisOneHoldsTheClaim) {
  ASSERT_TRUE(claim());

  EXPECT_EQ(OtherInstance(environment).said(), kNo);
}

TEST_F(LinuxSingleInstanceTest, ARefusedInstanceTakesNothingFromTheHolder) {
  ASSERT_TRUE(claim());
  OtherInstance(environment).kill();

  EXPECT_EQ(OtherInstance(environment).said(), kNo);
}

TEST_F(LinuxSingleInstanceTest, AProgramThatItStartedDoesNotKeepTheClaim) {
  ChildProcess holder([this](const Say& say) {
    LinuxSingleInstance own(environment);
    own.claim();
    // A line from the other program is the proof that it runs, with what it was let to inherit.
    std::FILE* started = popen("echo $$; exec sleep 100", "r");
    std::array<char, 20> process{};
    say(std::fgets(process.data(), process.size(), started));
    stayUntilKilled();
  });
  const pid_t started = std::stoi(holder.hearLine());
  holder.kill();

  EXPECT_TRUE(claim());

  EXPECT_EQ(::kill(started, SIGKILL), 0);
}

TEST_F(LinuxSingleInstanceTest, TheLockIsInTheRuntimeFolder) {
  ASSERT_TRUE(claim());

  EXPECT_TRUE(home.has("run/zelvane/instance.lock"));
  EXPECT_FALSE(home.has("home"));
  EXPECT_FALSE(home.has(tmpName()));
}

TEST_F(LinuxSingleInstanceTest, WithoutARuntimeFolderItIsInTheCacheFolder) {
  environment.runtimeDir.clear();

  ASSERT_TRUE(claim());

  EXPECT_TRUE(home.has("home/.cache/zelvane/instance.lock"));
  EXPECT_EQ(fs::status(home / "home/.cache/zelvane").permissions(), fs::perms(0700));
  EXPECT_EQ(OtherInstance(environment).said(), kNo);
}

TEST_F(LinuxSingleInstanceTest, ARuntimeFolderOpenToOthersIsNotTrusted) {
  fs::permissions(home / "run", fs::perms(0755));

  ASSERT_TRUE(claim());

  EXPECT_TRUE(fs::is_empty(home / "run"));
  EXPECT_TRUE(home.has("home/.cache/zelvane/instance.lock"));
}

TEST_F(LinuxSingleInstanceTest, ARuntimeFolderThatIsALinkIsNotTrusted) {
  fs::create_directory_symlink(home / "run", home / "link");
  environment.runtimeDir = home / "link";

  ASSERT_TRUE(claim());

  EXPECT_TRUE(fs::is_empty(home / "run"));
}

TEST_F(LinuxSingleInstanceTest, WithoutAnyOtherItIsInTheTemporaryFolder) {
  environment.runtimeDir.clear();
  home.write("home/.cache", "a file in the folder's place");

  ASSERT_TRUE(claim());

  EXPECT_TRUE(home.has(tmpName() + "/instance.lock"));
  EXPECT_EQ(fs::status(home / tmpName()).permissions(), fs::perms(0700));
  EXPECT_EQ(OtherInstance(environment).said(), kNo);
}

TEST_F(LinuxSingleInstanceTest, ALinkInPlaceOfItsFolderIsNotFollowed) {
  environment.runtimeDir.clear();
  home.write("home/.cache", "");
  fs::create_directory(home / "elsewhere");
  fs::create_directory_symlink(home / "elsewhere", home / tmpName());

  EXPECT_TRUE(claim());

  EXPECT_TRUE(fs::is_empty(home / "elsewhere"));
}

TEST_F(LinuxSingleInstanceTest, ALinkInPlaceOfTheLockIsNotFollowed) {
  fs::create_directory(home / "run/zelvane");
  fs::permissions(home / "run/zelvane", fs::perms(0700));
  fs::create_symlink(home / "elsewhere", home / "run/zelvane/instance.lock");

  EXPECT_TRUE(claim());

  EXPECT_FALSE(home.has("elsewhere"));
}

TEST_F(LinuxSingleInstanceTest, WhereNothingCanBeLockedTheProgramRuns) {
  environment.runtimeDir.clear();
  environment.cacheHome = "/proc/none";
  environment.tmpDir = "/proc/none";

  EXPECT_TRUE(claim());
}

}  // namespace
}  // namespace zelvane::test
