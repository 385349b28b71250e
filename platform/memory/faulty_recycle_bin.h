// A bin in which, when it is told to, nothing lets itself be erased.
#pragma once

#include <cstdint>

#include "platform/memory/faults.h"
#include "platform/recycle_bin.h"

namespace zelvane::platform {

class FaultyRecycleBin : public RecycleBin {
 public:
  FaultyRecycleBin(RecycleBin& bin, Faults& faults) : bin_(bin), faults_(faults) {}

  std::uint64_t empty(EventPump& pump) override {
    faults_.throwIfItFails(ErrorNumber::permissionDenied, "RecycleBin::empty", "");
    return bin_.empty(pump);
  }

 private:
  RecycleBin& bin_;
  Faults& faults_;
};

}  // namespace zelvane::platform
