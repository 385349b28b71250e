// One lock file in a folder of the user's own. The system gives the lock back when the process
// ends, also when it is killed.
#pragma once

#include <string>
#include <vector>

#include "platform/linux/descriptor.h"
#include "platform/linux/environment.h"
#include "platform/single_instance.h"

namespace zelvane::platform {

// The lock is in "zelvane" in the run-time folder, or where there is none (a console, a container)
// in the cache folder, or else in "zelvane-<user number>" in the folder for temporary files. A
// folder counts only if it is the user's own and no link, and others can do nothing in it.
class LinuxSingleInstance : public SingleInstance {
 public:
  explicit LinuxSingleInstance(const Environment& environment);

  // Held as long as this object lives.
  bool claim() override;

 private:
  Descriptor openLockFile() const;

  std::vector<std::string> folders_;  // those to try, best first
  Descriptor lock_;
};

}  // namespace zelvane::platform
