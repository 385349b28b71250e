#include <filesystem>
#include <optional>

#include "platform/linux/linux_profile_file.h"
#include "tests/contract/profile_file_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::LinuxProfileFile;

constexpr const char* kFile = "home/.config/zelvane/win.ini";

class LinuxProfileFileBed : public ProfileFileBed {
 public:
  platform::ProfileFile& profile() override { return profile_; }
  std::string content() const override { return folder_.read(kFile); }
  void setContent(const std::string& content) override { folder_.write(kFile, content); }
  void makeUnwritable() override {
    fs::remove(folder_ / kFile);
    fs::create_directory(folder_ / kFile);
  }

 private:
  ThrowAwayFolder folder_;
  LinuxProfileFile profile_{environmentIn(folder_)};
};

std::unique_ptr<ProfileFileBed> makeLinuxProfileFileBed() {
  return std::make_unique<LinuxProfileFileBed>();
}

INSTANTIATE_TEST_SUITE_P(Linux, ProfileFileContract, testing::Values(makeLinuxProfileFileBed));

class LinuxProfileFileTest : public testing::Test {
 protected:
  ThrowAwayFolder home;
  LinuxProfileFile profile{environmentIn(home)};
};

TEST_F(LinuxProfileFileTest, LookingMakesNothing) {
  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);

  EXPECT_FALSE(home.has("home"));
}

TEST_F(LinuxProfileFileTest, TheFileIsPrivate) {
  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));

  EXPECT_EQ(fs::status(home / kFile).permissions(), fs::perms(0600));
}

TEST_F(LinuxProfileFileTest, ALinkInPlaceOfTheFileIsRefused) {
  home.write("elsewhere.ini", "[Extensions]\nDVK=old\n");
  fs::create_directories(home / "home/.config/zelvane");
  fs::create_symlink(home / "elsewhere.ini", home / kFile);

  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);
  EXPECT_FALSE(profile.write("Extensions", "DVK", "new"));
  EXPECT_EQ(home.read("elsewhere.ini"), "[Extensions]\nDVK=old\n");
}

TEST_F(LinuxProfileFileTest, TwoProcessesThatWriteAtOnceLoseNothing) {
  constexpr int kEach = 40;
  const auto writeMany = [this](const std::string& section) {
    return [this, section](const Say&) {
      for (int i = 0; i < kEach; ++i) profile.write(section, std::to_string(i), section);
    };
  };

  ChildProcess first(writeMany("first"));
  writeMany("second")({});
  EXPECT_EQ(first.wait(), 0);

  for (const std::string section : {"first", "second"}) {
    for (int i = 0; i < kEach; ++i) EXPECT_EQ(profile.find(section, std::to_string(i)), section);
  }
}

}  // namespace
}  // namespace zelvane::test
