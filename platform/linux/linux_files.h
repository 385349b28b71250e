// Files of a Linux file system.
//
// A pending file has no name at all until it is published (O_TMPFILE), so that even a kill leaves
// nothing of it. Where the file system has no unnamed files it waits under a hidden random name.
#pragma once

#include "platform/files.h"

namespace zelvane::platform {

class LinuxFiles : public Files {
 public:
  bool exists(const std::string& path) const override;
  std::unique_ptr<ReadStream> open(const std::string& path) const override;
  std::string readWhole(const std::string& path, std::uint64_t limit) const override;
  void remove(const std::string& path) override;
  std::unique_ptr<PendingFile> createBeside(const std::string& target) override;
  std::unique_ptr<PendingFile> createInPlaceOf(const std::string& target) override;
};

}  // namespace zelvane::platform
