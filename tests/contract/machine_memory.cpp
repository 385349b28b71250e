#include "platform/memory/memory_machine.h"
#include "tests/contract/machine_contract.h"

namespace zelvane::test {
namespace {

using platform::MemoryMachine;
using platform::SystemVersion;

template <typename Change>
class MemoryMachineBed : public MachineBed {
 public:
  MemoryMachineBed() { Change()(machine_.facts); }

  platform::Machine& machine() override { return machine_; }

 private:
  MemoryMachine machine_;
};

struct AsItIs {
  void operator()(MemoryMachine::Facts&) const {}
};
struct OfTheOtherFamily {
  void operator()(MemoryMachine::Facts& facts) const {
    facts.system = SystemVersion{.kind = 2, .major = 10};
  }
};
struct WithoutANetwork {
  void operator()(MemoryMachine::Facts& facts) const {
    facts.computerName = "";
    facts.localAddress = std::nullopt;
  }
};

template <typename Change>
std::unique_ptr<MachineBed> make() {
  return std::make_unique<MemoryMachineBed<Change>>();
}

INSTANTIATE_TEST_SUITE_P(Memory, MachineContract,
                         testing::Values(make<AsItIs>, make<OfTheOtherFamily>,
                                         make<WithoutANetwork>));

}  // namespace
}  // namespace zelvane::test
