#include "core/startup_entry.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_identity.h"
#include "platform/memory/memory_registry.h"

namespace zelvane::core::Registry {
namespace {

using Port = platform::Registry;
using Root = Port::Root;

class StartupEntryTest : public testing::Test {
 protected:
  StartupEntryTest() {
    identity.facts.programFolder = R"(C:\Apps\Zelvane)";
    identity.facts.executableName = "Zelvane";
    identity.facts.separator = '\\';
  }

  void setRunAtStartup(bool run) { SetRunAtStartup(registry, identity, run); }

  std::optional<std::string> entry(const std::string& name = "Zelvane") const {
    return registry.text(Root::currentUser, kRunKey, name);
  }

  platform::MemoryRegistry registry;
  platform::MemoryIdentity identity;
};

TEST_F(StartupEntryTest, IsFolderSeparatorExecutableAndSuffixUnderTheTitle) {
  setRunAtStartup(true);

  EXPECT_EQ(entry(), R"(C:\Apps\Zelvane\Zelvane.exe)");
}

TEST_F(StartupEntryTest, IsAStringWhoseZeroByteIsCounted) {
  setRunAtStartup(true);

  const auto value = registry.value(Root::currentUser, kRunKey, "Zelvane");
  ASSERT_TRUE(value.has_value());
  EXPECT_EQ(value->type, Port::Type::string);
  EXPECT_EQ(value->data.size(), std::string(R"(C:\Apps\Zelvane\Zelvane.exe)").size() + 1);
  EXPECT_EQ(value->data.back(), std::byte{0});
}

TEST_F(StartupEntryTest, APathWithBlanksIsWrittenUnquoted) {
  identity.facts.programFolder = R"(C:\Program Files\My Tools)";

  setRunAtStartup(true);

  EXPECT_EQ(entry(), R"(C:\Program Files\My Tools\Zelvane.exe)");
}

TEST_F(StartupEntryTest, AProgramAtTheRootOfADriveHasTwoSeparatorsInARow) {
  identity.facts.programFolder = R"(C:\)";

  setRunAtStartup(true);

  EXPECT_EQ(entry(), R"(C:\\Zelvane.exe)");
}

TEST_F(StartupEntryTest, TheNameIsTheTitleAndTheTextHasTheExecutablesOwn) {
  identity.facts.version.title = "Other Title";
  identity.facts.executableName = "renamed";

  setRunAtStartup(true);

  EXPECT_EQ(entry("Other Title"), R"(C:\Apps\Zelvane\renamed.exe)");
  EXPECT_EQ(entry("Zelvane"), std::nullopt);
}

TEST_F(StartupEntryTest, AnEarlierEntryIsReplaced) {
  registry.put(Root::currentUser, kRunKey, "Zelvane", R"(D:\Old\Zelvane.exe)");

  setRunAtStartup(true);

  EXPECT_EQ(entry(), R"(C:\Apps\Zelvane\Zelvane.exe)");
}

TEST_F(StartupEntryTest, IsDeletedAndEntriesOfOthersStay) {
  registry.put(Root::currentUser, kRunKey, "Zelvane", "old");
  registry.put(Root::currentUser, kRunKey, "Other", "theirs");

  setRunAtStartup(false);

  EXPECT_EQ(entry(), std::nullopt);
  EXPECT_EQ(entry("Other"), "theirs");
}

TEST_F(StartupEntryTest, DeletingAMissingEntryIsNoError) {
  EXPECT_NO_THROW(setRunAtStartup(false));

  EXPECT_EQ(entry(), std::nullopt);
}

TEST_F(StartupEntryTest, WithoutTheListNothingIsMade) {
  registry.deleteKey(Root::currentUser, kRunKey);

  setRunAtStartup(true);
  setRunAtStartup(false);

  EXPECT_FALSE(registry.hasKey(Root::currentUser, kRunKey));
}

TEST_F(StartupEntryTest, AListThatRefusesStaysAsItWas) {
  registry.put(Root::currentUser, kRunKey, "Zelvane", "old");
  registry.refuse(Root::currentUser, kRunKey);

  EXPECT_NO_THROW(setRunAtStartup(true));
  EXPECT_NO_THROW(setRunAtStartup(false));

  EXPECT_EQ(entry(), "old");
}

TEST_F(StartupEntryTest, TheListIsClosedAgain) {
  setRunAtStartup(true);
  setRunAtStartup(false);

  EXPECT_TRUE(registry.openKeys().empty());
}

}  // namespace
}  // namespace zelvane::core::Registry
