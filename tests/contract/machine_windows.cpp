#include <string>

#include <windows.h>

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

// What a program is told without a word on it in its manifest stops at an old one.
TEST(WindowsMachine, TheVersionIsTheOneThatTheSystemWasInstalledWith) {
  wchar_t build[64] = L"";
  DWORD size = sizeof build;
  ASSERT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, LR"(Software\Microsoft\Windows NT\CurrentVersion)",
                         L"CurrentBuildNumber", RRF_RT_REG_SZ, nullptr, build, &size),
            ERROR_SUCCESS);

  const auto version = std::get<SystemVersion>(WindowsMachine().system());

  EXPECT_EQ(version.kind, 2);
  EXPECT_EQ(std::to_wstring(version.build), build);
}

}  // namespace
}  // namespace zelvane::test
