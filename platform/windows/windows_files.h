// Files of a Windows volume.
#pragma once

#include "platform/files.h"

namespace zelvane::platform {

// Paths may be longer than Windows usually takes them. Deleting a read-only file succeeds, and so
// does replacing one.
class WindowsFiles : public Files {
 public:
  bool exists(const std::string& path) const override;
  std::unique_ptr<ReadStream> open(const std::string& path) const override;
  std::string readWhole(const std::string& path, std::uint64_t limit) const override;
  void remove(const std::string& path) override;
  std::unique_ptr<PendingFile> createBeside(const std::string& target) override;
  std::unique_ptr<PendingFile> createInPlaceOf(const std::string& target) override;
};

}  // namespace zelvane::platform
