// A folder of temporary files as a desktop at work has it, under the run's own erasure.
#include <string>

#include <gtest/gtest.h>

#include "cleaner/erasure.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_special_folders.h"
#include "tests/attack/zoo/erasing.h"
#include "tests/attack/zoo/outcomes.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

TEST(TemporaryFolder, OfADesktopAtWorkTheLeftoversGoAndTheRestIsUntouched) {
  const ThrowAwayFolder folder;
  ZooWorld world{folder.path()};
  world.file("root/document.tmp");
  world.file("root/unpacked/deep/er/file");
  world.link("root/link", world.path("outside/folder"));
  world.file("root/being written");
  world.hold("root/being written");
  world.folder("root/.X11-unix");
  world.socket("root/.X11-unix/X0");
  world.file("root/.X0-lock");
  world.folder("root/.ICE-unix");
  world.file("root/systemd-private-1-printer/tmp/job");
  world.folder("root/ssh-XXXX");
  world.socket("root/ssh-XXXX/agent.1");
  world.file("root/runtime-user/state");
  world.socket("root/org.browser.XXXX/SingletonSocket");
  world.link("root/org.browser.XXXX/SingletonCookie", "1234");
  world.socket("root/meeting place");
  world.pipe("root/pipe");
  ZooCase zooCase;
  zooCase.stays = {"root/being written", "root/.X11-unix",     "root/.X0-lock",
                   "root/.ICE-unix",     "root/ssh-XXXX",      "root/systemd-private-1-printer",
                   "root/runtime-user",  "root/meeting place", "root/org.browser.XXXX",
                   "root/pipe"};
  const Manifest before = manifestOf(world.folder());
  platform::Environment environment;
  environment.home = world.path("home");
  environment.tmpDir = world.path("root");
  const platform::LinuxSpecialFolders folders(environment);
  platform::LinuxFolderTree tree({}, folders);
  Meanwhile nothing;

  cleaner::eraseContents(tree, nothing, folders.temporaryPath().value());

  EXPECT_TRUE(asItShould(outcomeOf(zooCase, world.kept(), before, manifestOf(world.folder()))));
}

}  // namespace
}  // namespace zelvane::test
