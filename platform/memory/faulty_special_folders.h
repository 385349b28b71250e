// Special folders that are not found when they are told not to be.
#pragma once

#include <optional>
#include <string>

#include "platform/memory/faults.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// The subject of a call is the folder's number.
class FaultySpecialFolders : public SpecialFolders {
 public:
  FaultySpecialFolders(const SpecialFolders& folders, Faults& faults)
      : folders_(folders), faults_(faults) {}

  std::optional<std::string> path(SpecialFolder folder) const override {
    const std::string number = std::to_string(static_cast<int>(folder));
    if (faults_.fails("SpecialFolders::path", number)) return std::nullopt;
    return folders_.path(folder);
  }

  std::optional<std::string> temporaryPath() const override {
    if (faults_.fails("SpecialFolders::temporaryPath", "")) return std::nullopt;
    return folders_.temporaryPath();
  }

 private:
  const SpecialFolders& folders_;
  Faults& faults_;
};

}  // namespace zelvane::platform
