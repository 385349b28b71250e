// What every process end promises, whatever it is made of.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/process_end.h"

namespace zelvane::test {

// A program whose end the test survives.
class ProcessEndBed {
 public:
  using Say = std::function<void(const std::string& line)>;
  using Program = std::function<void(platform::ProcessEnd&, const Say&)>;

  virtual ~ProcessEndBed() = default;

  // Runs it to its end; the lines that it said, each with a line break.
  virtual std::string run(const Program& program) = 0;

  // The exit status of the latest run; -1 if it went on after its end.
  virtual int status() const = 0;
};

using MakeProcessEndBed = std::unique_ptr<ProcessEndBed> (*)();

class ProcessEndContract : public testing::TestWithParam<MakeProcessEndBed> {
 protected:
  std::unique_ptr<ProcessEndBed> bed = GetParam()();
};

}  // namespace zelvane::test
