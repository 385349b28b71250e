#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/memory/faulty_settings.h"
#include "platform/memory/memory_settings.h"
#include "tests/contract/settings_contract.h"

namespace zelvane::test {
namespace {

using platform::MemorySettings;

class MemorySettingsBed : public SettingsBed {
 public:
  platform::SettingsBackend& settings() override { return settings_; }
  platform::SettingsBackend& inAnotherProcess() override { return settings_; }
  void damage() override { settings_.damage(); }
  void makeUnreadable() override { settings_.refuseEverything(); }

 private:
  MemorySettings settings_;
};

std::unique_ptr<SettingsBed> makeMemorySettingsBed() {
  return std::make_unique<MemorySettingsBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, SettingsContract, testing::Values(makeMemorySettingsBed));

// With no fault set a decorator is like what it wraps.
class FaultySettingsBed : public MemorySettingsBed {
 public:
  platform::SettingsBackend& settings() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultySettings faulty_{MemorySettingsBed::settings(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, SettingsContract,
                         testing::Values([]() -> std::unique_ptr<SettingsBed> {
                           return std::make_unique<FaultySettingsBed>();
                         }));

TEST(MemorySettings, RemembersTheOrderOfTheSaves) {
  MemorySettings settings;
  settings.save("Zelvane", "Schedule", "Time", "10:45:00");
  settings.save("Zelvane", "Schedule", "Date", "Null");
  settings.save("Zelvane", "Schedule", "Time", "10:46:00");

  EXPECT_EQ(settings.savedKeys(), (std::vector<std::string>{"Time", "Date", "Time"}));
  EXPECT_EQ(settings.saves().back(),
            (MemorySettings::Save{"Zelvane", "Schedule", "Time", "10:46:00"}));
}

TEST(MemorySettings, WhatATestPutThereIsNoSave) {
  MemorySettings settings;
  settings.put("Schedule", "RunOn", "7");

  EXPECT_EQ(settings.find("Schedule", "RunOn"), "7");
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), "7");
  EXPECT_TRUE(settings.saves().empty());
}

TEST(MemorySettings, ARefusedSaveIsThrownAndNotRemembered) {
  MemorySettings settings;
  settings.put("Schedule", "RunOn", "7");
  settings.refuseSaves();

  EXPECT_THROW(settings.save("Zelvane", "Schedule", "RunOn", "8"), platform::Error);
  EXPECT_EQ(settings.find("Schedule", "RunOn"), "7");
  EXPECT_TRUE(settings.saves().empty());
}

}  // namespace
}  // namespace zelvane::test
