// Keeps other processes of the same user out of a folder's files while one of them is changed.
#pragma once

#include <chrono>

#include "platform/linux/descriptor.h"

namespace zelvane::platform {

class FolderLock {
 public:
  // Waits until the lock is free. One that is not free after `patience` is held by a process that
  // stands still: permissionDenied. Goes when this object goes, or with the process.
  explicit FolderLock(const Descriptor& folder,
                      std::chrono::milliseconds patience = std::chrono::seconds(5));

 private:
  Descriptor file_;
};

}  // namespace zelvane::platform
