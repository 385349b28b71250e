// Files that fail when they are told to, and so do their streams.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/memory/faults.h"

namespace zelvane::platform {

// The subject of a call is the path, of a stream's call too.
class FaultyFiles : public Files {
 public:
  FaultyFiles(Files& files, Faults& faults) : files_(files), faults_(faults) {}

  bool exists(const std::string& path) const override;
  std::unique_ptr<ReadStream> open(const std::string& path) const override;
  std::string readWhole(const std::string& path, std::uint64_t limit) const override;
  void remove(const std::string& path) override;
  std::unique_ptr<PendingFile> createBeside(const std::string& target) override;
  std::unique_ptr<PendingFile> createInPlaceOf(const std::string& target) override;

 private:
  Files& files_;
  Faults& faults_;
};

}  // namespace zelvane::platform
