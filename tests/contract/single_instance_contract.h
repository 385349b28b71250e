// What every single-instance claim promises, whatever it is made of.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/single_instance.h"

namespace zelvane::test {

// A user for whom nothing runs at first.
class SingleInstanceBed {
 public:
  virtual ~SingleInstanceBed() = default;

  virtual platform::SingleInstance& instance() = 0;

  // Starts a second process that makes the claim first and goes on running ...
  virtual void startAnother() = 0;
  // ... and ends it, without a chance to tidy up.
  virtual void killTheOther() = 0;
};

using MakeSingleInstanceBed = std::unique_ptr<SingleInstanceBed> (*)();

class SingleInstanceContract : public testing::TestWithParam<MakeSingleInstanceBed> {
 protected:
  std::unique_ptr<SingleInstanceBed> bed = GetParam()();
  platform::SingleInstance& instance = bed->instance();
};

}  // namespace zelvane::test
