#include "platform/memory/faulty_programs.h"
#include "platform/memory/memory_programs.h"
#include "tests/contract/programs_contract.h"

namespace zelvane::test {
namespace {

constexpr auto kProgram = "/usr/bin/browser";

class MemoryProgramsBed : public ProgramsBed {
 public:
  platform::Programs& programs() override { return programs_; }
  void install() override { programs_.use("htm", kProgram); }
  void spoil() override { programs_.uninstall(kProgram); }
  std::string page(const std::string& name) override { return "/tmp/" + name + ".htm"; }
  std::string stranger() override { return "/tmp/page.zelvane-nobody"; }
  std::string argument() override { return programs_.started().back().argument; }

 private:
  platform::MemoryPrograms programs_;
};

INSTANTIATE_TEST_SUITE_P(Memory, ProgramsContract,
                         testing::Values([]() -> std::unique_ptr<ProgramsBed> {
                           return std::make_unique<MemoryProgramsBed>();
                         }));

// With no fault set a decorator is like what it wraps.
class FaultyProgramsBed : public MemoryProgramsBed {
 public:
  platform::Programs& programs() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyPrograms faulty_{MemoryProgramsBed::programs(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, ProgramsContract,
                         testing::Values([]() -> std::unique_ptr<ProgramsBed> {
                           return std::make_unique<FaultyProgramsBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
