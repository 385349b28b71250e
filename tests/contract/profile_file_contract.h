// What every profile file promises, whatever it is made of.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/profile_file.h"

namespace zelvane::test {

// A profile file that does not exist at first.
class ProfileFileBed {
 public:
  virtual ~ProfileFileBed() = default;

  virtual platform::ProfileFile& profile() = 0;

  // The whole text of the file.
  virtual std::string content() const = 0;
  virtual void setContent(const std::string& content) = 0;

  virtual void makeUnwritable() = 0;
};

using MakeProfileFileBed = std::unique_ptr<ProfileFileBed> (*)();

class ProfileFileContract : public testing::TestWithParam<MakeProfileFileBed> {
 protected:
  std::unique_ptr<ProfileFileBed> bed = GetParam()();
  platform::ProfileFile& profile = bed->profile();
};

}  // namespace zelvane::test
