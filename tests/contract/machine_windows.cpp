#include <string>

#include <windows.h>

#include "core/machine_facts.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_machine.h"
#include "tests/contract/machine_contract.h"

namespace zelvane::test {
namespace {

using platform::SystemVersion;
using platform::WindowsMachine;

class WindowsMachineBed : public MachineBed {
 public:
  platform::Machine& machine() override { return machine_; }

 private:
  WindowsMachine machine_;
};

std::unique_ptr<MachineBed> makeWindowsMachineBed() {
  return std::make_unique<WindowsMachineBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, MachineContract, testing::Values(makeWindowsMachineBed));

TEST(WindowsMachine, TheComputerNameIsTheSystems) {
  wchar_t name[256] = L"";
  DWORD length = 256;
  GetComputerNameExW(ComputerNameNetBIOS, name, &length);

  EXPECT_EQ(WindowsMachine().computerName(), platform::plainText(name));
  EXPECT_NE(WindowsMachine().computerName(), "");
}

TEST(WindowsMachine, TheVersionIsTheTrueOneOfTheNtLine) {
  const auto version = std::get<SystemVersion>(WindowsMachine().system());

  EXPECT_EQ(version.kind, 2);
  EXPECT_EQ(version.major, 10);
  EXPECT_EQ(version.minor, 0);
  EXPECT_GE(version.build, 10'240);
}

TEST(WindowsMachine, ASystemOfTodayGoesWithoutAName) {
  EXPECT_EQ(core::OS::GetOSName(WindowsMachine()), "");
}

}  // namespace
}  // namespace zelvane::test
