#include "tests/contract/machine_contract.h"

#include <sstream>
#include <string>

namespace zelvane::test {
namespace {

using platform::SystemVersion;

// The text as four numbers are written, so that whatever else is in it shows.
std::string asDotted(const std::string& text) {
  std::istringstream stream(text);
  std::string written;
  for (int part = 0; part < 4; ++part) {
    unsigned number = 256;
    char dot = 0;
    stream >> number >> dot;
    written += (part == 0 ? "" : ".") + std::to_string(number % 256);
  }
  return written;
}

TEST_P(MachineContract, TheComputerNameIsOneLineOfUpTo255Letters) {
  const std::string name = machine.computerName();

  EXPECT_LE(name.size(), 255U);
  EXPECT_EQ(name.find('\n'), std::string::npos);
  EXPECT_EQ(name.find('\0'), std::string::npos);
}

TEST_P(MachineContract, ASystemWithoutAVersionRecordHasANameOfOneLine) {
  const auto system = machine.system();
  const auto* name = std::get_if<std::string>(&system);

  const std::string checked = name == nullptr ? "none is due" : *name;

  EXPECT_NE(checked, "");
  EXPECT_EQ(checked.find('\n'), std::string::npos);
}

TEST_P(MachineContract, AVersionRecordIsOfTheTwoKnownLines) {
  const auto system = machine.system();
  const auto* version = std::get_if<SystemVersion>(&system);

  const SystemVersion checked = version == nullptr ? SystemVersion{.kind = 2} : *version;

  EXPECT_GE(checked.kind, 1);
  EXPECT_LE(checked.kind, 2);
}

TEST_P(MachineContract, TheLocalAddressIsDottedAndNoPlaceholder) {
  const std::string address = machine.localAddress().value_or("192.0.2.1");

  EXPECT_EQ(address, asDotted(address));
  EXPECT_NE(address, "0.0.0.0");
  EXPECT_FALSE(address.starts_with("127.")) << address;
}

TEST_P(MachineContract, EveryAnswerIsTheSameTwice) {
  EXPECT_EQ(machine.computerName(), machine.computerName());
  EXPECT_EQ(machine.system(), machine.system());
  EXPECT_EQ(machine.localAddress(), machine.localAddress());
}

}  // namespace
}  // namespace zelvane::test
