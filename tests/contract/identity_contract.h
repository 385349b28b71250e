// What every identity promises, whatever it is made of.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/identity.h"

namespace zelvane::test {

class IdentityBed {
 public:
  virtual ~IdentityBed() = default;

  virtual platform::Identity& identity() = 0;
};

using MakeIdentityBed = std::unique_ptr<IdentityBed> (*)();

class IdentityContract : public testing::TestWithParam<MakeIdentityBed> {
 protected:
  // A path from a root of the file system, which ends in a name.
  void expectFolder(const std::string& path) const {
    const std::string separator(1, identity.separator());
    EXPECT_NE(path.find(separator), std::string::npos);
    EXPECT_FALSE(path.ends_with(separator)) << path;
  }

  std::unique_ptr<IdentityBed> bed = GetParam()();
  platform::Identity& identity = bed->identity();
};

}  // namespace zelvane::test
