// What every recycle bin promises, and the world in which a tenant is asked to keep it.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/memory/memory_event_pump.h"
#include "platform/recycle_bin.h"

namespace zelvane::test {

class RecycleBinBed {
 public:
  virtual ~RecycleBinBed() = default;

  virtual platform::RecycleBin& bin() = 0;
  std::uint64_t empty() { return bin().empty(pump); }
  platform::MemoryEventPump pump;

  // Something of so many bytes that the user deleted: from the home, or from another volume.
  virtual void put(const std::string& name, std::size_t bytes) = 0;
  virtual void putFromOtherVolume(const std::string& name, std::size_t bytes) = 0;

  // Something that cannot be erased.
  virtual void putRefusing(const std::string& name) = 0;

  // Whether it can still be restored, that is, both it and the note about it are there.
  virtual bool has(const std::string& name) const = 0;

  // Why a promise cannot be asked for here; empty where it can.
  virtual std::string whyNoRefusals() const { return {}; }
};

using MakeRecycleBinBed = std::unique_ptr<RecycleBinBed> (*)();

class RecycleBinContract : public testing::TestWithParam<MakeRecycleBinBed> {
 protected:
  std::unique_ptr<RecycleBinBed> bed = GetParam()();
};

}  // namespace zelvane::test
