// What every window promises to do at the program's word.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/window_commands.h"

namespace zelvane::test {

// A window with two controls, "txtFirst" and "txtSecond".
class WindowCommandsBed {
 public:
  virtual ~WindowCommandsBed() = default;

  virtual platform::WindowCommands& window() = 0;

  // Can be seen by the user, as soon as the desktop has had its time.
  virtual bool isForward() = 0;
  virtual bool isActive() = 0;
  virtual std::string focused() const = 0;

  // How often the control was painted so far.
  virtual std::ptrdiff_t paintings(const std::string& controlName) const = 0;
};

using MakeWindowCommandsBed = std::unique_ptr<WindowCommandsBed> (*)();

class WindowCommandsContract : public testing::TestWithParam<MakeWindowCommandsBed> {
 protected:
  std::unique_ptr<WindowCommandsBed> bed = GetParam()();
};

}  // namespace zelvane::test
