#include <filesystem>

#include <gtest/gtest.h>
#include <stdlib.h>

#include "platform/linux/linux_files.h"
#include "platform/linux/run_history.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

class RunHistoryTest : public testing::Test {
 protected:
  void erase() { platform::RunHistory(environment, files).erase(); }

  const ThrowAwayFolder folder;
  const platform::Environment environment = environmentIn(folder);
  platform::LinuxFiles files;
};

TEST_F(RunHistoryTest, TheListOfXfceIsDeleted) {
  folder.write("home/.cache/xfce4/xfce4-appfinder/history", "secret\n");

  erase();

  EXPECT_FALSE(folder.has("home/.cache/xfce4/xfce4-appfinder/history"));
}

TEST_F(RunHistoryTest, OfKdesFileOnlyTheHistoryGoes) {
  folder.write("home/.local/share/krunnerstaterc",
               "[PlasmaRunnerManager]\nmigrated=true\n\n[PlasmaRunnerManager][History]\n"
               "1234-5678=secret,other\n\n[Other]\nhistory=mine\n");

  erase();

  EXPECT_EQ(folder.read("home/.local/share/krunnerstaterc"),
            "[PlasmaRunnerManager]\nmigrated=true\n\n[Other]\nhistory=mine\n");
}

TEST_F(RunHistoryTest, OfKdesFormerFileOnlyTheHistoryGoes) {
  folder.write("home/.config/krunnerrc", "[General]\nhistory=secret\nFreeFloating=true\n");

  erase();

  EXPECT_EQ(folder.read("home/.config/krunnerrc"), "[General]\nFreeFloating=true\n");
}

TEST_F(RunHistoryTest, AFileWithoutALastLineEndKeepsItsText) {
  folder.write("home/.config/krunnerrc", "[General]\nFreeFloating=true\nhistory=secret");

  erase();

  EXPECT_EQ(folder.read("home/.config/krunnerrc"), "[General]\nFreeFloating=true\n");
}

// A program of that name stands in for the desktops' own, which is not part of every system.
TEST_F(RunHistoryTest, ListsInTheDesktopsSettingsAreReset) {
  folder.write("home/.config/dconf/user", "settings");
  const std::string program =
      folder.write("bin/gsettings", "#!/bin/sh\necho \"$@\" >>\"$0.log\"\n");
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  const std::string path = getenv("PATH");
  setenv("PATH", (folder / "bin").append(":").append(path).c_str(), 1);

  erase();

  setenv("PATH", path.c_str(), 1);
  EXPECT_EQ(folder.read("bin/gsettings.log"),
            "reset org.gnome.shell command-history\nreset org.gnome.shell looking-glass-history\n"
            "reset org.cinnamon command-history\nreset org.mate.panel history-mate-run\n");
}

TEST_F(RunHistoryTest, WithoutAnyListNothingIsMade) {
  erase();

  EXPECT_FALSE(folder.has("home"));
}

}  // namespace
}  // namespace zelvane::test
