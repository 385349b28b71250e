#include <algorithm>

#include "platform/memory/faulty_recycle_bin.h"
#include "platform/memory/memory_recycle_bin.h"
#include "tests/contract/recycle_bin_contract.h"
#include "tests/support/no_events.h"

namespace zelvane::test {
namespace {

using platform::MemoryRecycleBin;

class MemoryRecycleBinBed : public RecycleBinBed {
 public:
  platform::RecycleBin& bin() override { return bin_; }
  void put(const std::string& name, std::size_t bytes) override {
    bin_.put({.name = name, .bytes = bytes});
  }
  void putFromOtherVolume(const std::string& name, std::size_t bytes) override { put(name, bytes); }
  void putRefusing(const std::string& name) override { bin_.put({.name = name, .refuses = true}); }
  bool has(const std::string& name) const override {
    return std::ranges::count(bin_.items(), name, &MemoryRecycleBin::Item::name) > 0;
  }

 private:
  MemoryRecycleBin bin_;
};

INSTANTIATE_TEST_SUITE_P(Memory, RecycleBinContract,
                         testing::Values([]() -> std::unique_ptr<RecycleBinBed> {
                           return std::make_unique<MemoryRecycleBinBed>();
                         }));

// With no fault set a decorator is like what it wraps.
class FaultyRecycleBinBed : public MemoryRecycleBinBed {
 public:
  platform::RecycleBin& bin() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyRecycleBin faulty_{MemoryRecycleBinBed::bin(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, RecycleBinContract,
                         testing::Values([]() -> std::unique_ptr<RecycleBinBed> {
                           return std::make_unique<FaultyRecycleBinBed>();
                         }));

TEST(MemoryRecycleBin, CountsHowOftenItWasEmptied) {
  MemoryRecycleBin bin;
  NoEvents pump;

  bin.empty(pump);
  bin.empty(pump);

  EXPECT_EQ(bin.emptied(), 2);
}

}  // namespace
}  // namespace zelvane::test
