// Single files of a tree that lives in memory.
#pragma once

#include "platform/files.h"
#include "platform/memory/memory_file_system.h"

namespace zelvane::platform {

class MemoryFiles : public Files {
 public:
  explicit MemoryFiles(MemoryFileSystem& fileSystem) : fileSystem_(fileSystem) {}

  bool exists(const std::string& path) const override;
  std::unique_ptr<ReadStream> open(const std::string& path) const override;
  std::string readWhole(const std::string& path, std::uint64_t limit) const override;
  void remove(const std::string& path) override;
  std::unique_ptr<PendingFile> createBeside(const std::string& target) override;
  std::unique_ptr<PendingFile> createInPlaceOf(const std::string& target) override;

  // From now on every write throws diskFull.
  void fillDisk() { diskIsFull_ = true; }

 private:
  MemoryFileSystem& fileSystem_;
  bool diskIsFull_ = false;
};

}  // namespace zelvane::platform
