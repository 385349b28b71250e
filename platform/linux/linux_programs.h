// The programs that a Linux desktop opens files with.
#pragma once

#include <vector>

#include <sys/types.h>

#include "platform/linux/environment.h"
#include "platform/programs.h"

namespace zelvane::platform {

// A program is named by the path of its desktop entry, because its executable's name alone may not
// start it: one that is packed with its own system is an argument of another executable.
//
// An argument that begins with a dash, which the program would take for one of its options, does
// not start it. What is started is not this process's child for long: it has a session of its own,
// and neither reads nor writes what this one does.
class LinuxPrograms : public Programs {
 public:
  explicit LinuxPrograms(Environment environment);

  std::optional<std::string> programFor(const std::string& file) const override;
  bool executablesHaveSuffix() const override { return false; }
  bool start(const std::string& program, const std::string& argument) override;

 private:
  void forgetEnded();

  Environment environment_;
  std::vector<pid_t> started_;  // until it is known that they have ended
};

}  // namespace zelvane::platform
