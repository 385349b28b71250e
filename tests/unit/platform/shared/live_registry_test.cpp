#include "platform/shared/live_registry.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_registry.h"

namespace zelvane::platform {
namespace {

class LiveRegistryTest : public testing::Test {
 protected:
  int erased = 0;
  MemoryRegistry hive;
  LiveRegistry registry{hive, {{R"(Software\Lists\Typed)", [this] { ++erased; }}}};
};

TEST_F(LiveRegistryTest, DeletingALiveKeyErasesWhatItStandsFor) {
  const auto result = registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  EXPECT_EQ(result, Registry::Result::success);
  EXPECT_EQ(erased, 1);
}

TEST_F(LiveRegistryTest, TheKeyItselfGoesAsWell) {
  registry.create(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  registry.deleteKey(Registry::Root::currentUser, R"(software\\lists\TYPED)");

  EXPECT_EQ(hive.open(Registry::Root::currentUser, R"(Software\Lists\Typed)").result,
            Registry::Result::notFound);
  EXPECT_EQ(erased, 1);
}

TEST_F(LiveRegistryTest, OtherKeysAreTheRegistrysOwn) {
  EXPECT_EQ(registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists\Other)"),
            Registry::Result::notFound);
  EXPECT_EQ(registry.deleteKey(Registry::Root::localMachine, R"(Software\Lists\Typed)"),
            Registry::Result::notFound);
  EXPECT_EQ(registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists)"),
            Registry::Result::notFound);
  EXPECT_EQ(erased, 0);
}

TEST_F(LiveRegistryTest, OpeningALiveKeyErasesNothing) {
  registry.open(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  EXPECT_EQ(erased, 0);
}

}  // namespace
}  // namespace zelvane::platform
