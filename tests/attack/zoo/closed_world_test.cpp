// Links that lead to the root of the whole system. Nobody may ever try an eraser on such a link in
// earnest: here the root of the system is the world itself, for a process that cannot leave it.
#include <cerrno>
#include <string>
#include <system_error>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/attack/zoo/erasing.h"
#include "tests/attack/zoo/outcomes.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

// For another process.
void closeIn(const std::string& folder) {
  if (chroot(folder.c_str()) != 0 || chdir("/") != 0) {
    throw std::system_error(errno, std::generic_category(), "cannot be closed in");
  }
}

// As for mounts, a process may close itself in where it is root, of its own name space at least.
TEST(ClosedWorldThatMayMount, LinksToTheRootOfTheSystemAreErasedAndNothingElse) {
  if (const PrivateMounts mounts; !mounts.whyNot().empty()) GTEST_SKIP() << mounts.whyNot();
  const ThrowAwayFolder folder;
  ZooWorld world(folder.path());
  world.link("root/system", "/");
  world.link("root/plain/link", "/outside/folder");
  world.link("root/plain/deep/above", "../../../../../../..");
  const Manifest before = manifestOf(world.folder());

  ChildProcess closedIn([&](const Say& say) {
    closeIn(world.folder());
    Meanwhile nothing;
    erase("/root", nothing);
    say("done");
  });

  EXPECT_EQ(closedIn.hearLine(), "done");
  EXPECT_TRUE(asItShould(outcomeOf({}, {}, before, manifestOf(world.folder()))));
}

}  // namespace
}  // namespace zelvane::test
