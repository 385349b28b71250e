// What every settings store promises, whatever it is made of.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/settings_backend.h"

namespace zelvane::test {

// A store of one user, empty and readable at first.
class SettingsBed {
 public:
  virtual ~SettingsBed() = default;

  virtual platform::SettingsBackend& settings() = 0;

  // The same store in the hands of a second process.
  virtual platform::SettingsBackend& inAnotherProcess() = 0;

  // Makes the store one that nobody understands ...
  virtual void damage() = 0;
  // ... or one that cannot be read at all.
  virtual void makeUnreadable() = 0;
};

using MakeSettingsBed = std::unique_ptr<SettingsBed> (*)();

class SettingsContract : public testing::TestWithParam<MakeSettingsBed> {
 protected:
  std::unique_ptr<SettingsBed> bed = GetParam()();
  platform::SettingsBackend& settings = bed->settings();
};

}  // namespace zelvane::test
