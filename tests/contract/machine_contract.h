// What every machine promises, whatever it is made of.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/machine.h"

namespace zelvane::test {

class MachineBed {
 public:
  virtual ~MachineBed() = default;

  virtual platform::Machine& machine() = 0;
};

using MakeMachineBed = std::unique_ptr<MachineBed> (*)();

class MachineContract : public testing::TestWithParam<MakeMachineBed> {
 protected:
  std::unique_ptr<MachineBed> bed = GetParam()();
  platform::Machine& machine = bed->machine();
};

}  // namespace zelvane::test
