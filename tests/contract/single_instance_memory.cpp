#include "platform/memory/memory_single_instance.h"
#include "tests/contract/single_instance_contract.h"

namespace zelvane::test {
namespace {

class MemorySingleInstanceBed : public SingleInstanceBed {
 public:
  platform::SingleInstance& instance() override { return instance_; }
  void startAnother() override { instance_.heldByAnother = true; }
  void killTheOther() override { instance_.heldByAnother = false; }

 private:
  platform::MemorySingleInstance instance_;
};

std::unique_ptr<SingleInstanceBed> makeMemorySingleInstanceBed() {
  return std::make_unique<MemorySingleInstanceBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, SingleInstanceContract,
                         testing::Values(makeMemorySingleInstanceBed));

}  // namespace
}  // namespace zelvane::test
