#include "core/settings_store.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"

namespace zelvane::core {
namespace {

using Application = SettingsStore::Application;

class SettingsStoreTest : public testing::Test {
 protected:
  platform::MemoryIdentity identity;
  platform::MemorySettings backend;
  SettingsStore settings{backend, identity};
};

TEST_F(SettingsStoreTest, AnAbsentValueIsItsDefault) {
  EXPECT_EQ(settings.load(Application::title, "Schedule", "RunOn", "None"), "None");
  EXPECT_EQ(settings.load(Application::title, "Schedule", "RunOn", "7"), "7");
}

TEST_F(SettingsStoreTest, AnEmptyStoredTextIsNotAnAbsentOne) {
  settings.save(Application::title, "HomePage", "StartPage", "");

  EXPECT_EQ(settings.load(Application::title, "HomePage", "StartPage", "about:blank"), "");
}

TEST_F(SettingsStoreTest, CleaningOptionsBelongToTheProgramsFolderAndTheRestToItsTitle) {
  settings.save(Application::programFolder, "Settings", "Index0", "1");
  settings.save(Application::title, "Options", "StartUp", "1");

  EXPECT_EQ(backend.find(identity.programFolder(), "Settings", "Index0"), "1");
  EXPECT_EQ(backend.find("Zelvane", "Options", "StartUp"), "1");
  EXPECT_EQ(backend.find("Zelvane", "Settings", "Index0"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::core
