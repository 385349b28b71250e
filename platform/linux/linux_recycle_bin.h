// The trash of the user's home and of every mounted volume.
#pragma once

#include <string>

#include "platform/linux/environment.h"
#include "platform/recycle_bin.h"

namespace zelvane::platform {

// Where the trash folders are: trash_places.h; what lies in one: trash_folder.h.
class LinuxRecycleBin : public RecycleBin {
 public:
  // `mountTable` is the path of the table of mounts, in the kernel's form.
  explicit LinuxRecycleBin(const Environment& environment,
                           std::string mountTable = "/proc/self/mountinfo");

  std::uint64_t empty(EventPump& pump) override;

 private:
  std::string dataHome_;
  std::string mountTable_;
};

}  // namespace zelvane::platform
