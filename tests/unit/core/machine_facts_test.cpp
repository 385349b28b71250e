#include "core/machine_facts.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"

namespace zelvane::core {
namespace {

using platform::MemoryMachine;
using platform::SystemVersion;

std::string nameOf(const SystemVersion& version) {
  MemoryMachine machine;
  machine.facts.system = version;
  return OS::GetOSName(machine);
}

TEST(GetOSName, OfTheConsumerLineLooksAtTheMinorVersion) {
  EXPECT_EQ(nameOf({.kind = 1, .major = 4, .minor = 0}), "Windows 95");
  EXPECT_EQ(nameOf({.kind = 1, .major = 4, .minor = 10}), "Windows 98");
}

TEST(GetOSName, Version490OnTheConsumerLineIsEmpty) {
  EXPECT_EQ(nameOf({.kind = 1, .major = 4, .minor = 90}), "");
}

TEST(GetOSName, OfTheNtLineLooksAtTheMajorVersion) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 3, .minor = 51}), "Windows NT 3.51");
  EXPECT_EQ(nameOf({.kind = 2, .major = 4, .minor = 0}), "Windows NT 4.0");
  EXPECT_EQ(nameOf({.kind = 2, .major = 5, .minor = 0}), "Windows 2000");
}

TEST(GetOSName, Version51IsWindows2000) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 5, .minor = 1}), "Windows 2000");
  EXPECT_EQ(nameOf({.kind = 2, .major = 5, .minor = 2}), "Windows 2000");
}

TEST(GetOSName, Version60IsWindowsXp) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 6, .minor = 0}), "Windows XP");
  EXPECT_EQ(nameOf({.kind = 2, .major = 6, .minor = 3}), "Windows XP");
}

TEST(GetOSName, Version100IsEmpty) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 10, .minor = 0, .build = 22'631}), "");
}

TEST(GetOSName, AnyOtherMajorVersionOfTheNtLineIsEmpty) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 2}), "");
  EXPECT_EQ(nameOf({.kind = 2, .major = 7}), "");
}

TEST(GetOSName, AnyOtherKindHasFailed) {
  EXPECT_EQ(nameOf({.kind = 0, .major = 5}), "Failed");
  EXPECT_EQ(nameOf({.kind = 3, .major = 5}), "Failed");
}

TEST(GetOSName, AVersionThatCouldNotBeAskedHasFailed) { EXPECT_EQ(nameOf({}), "Failed"); }

TEST(GetOSName, BuildAndServicePackDoNotMatter) {
  EXPECT_EQ(nameOf({.kind = 2, .major = 5, .build = 2195, .servicePack = "Service Pack 4"}),
            "Windows 2000");
}

TEST(GetOSName, ElsewhereIsTheReleasesOwnName) {
  MemoryMachine machine;
  machine.facts.system = "Debian GNU/Linux 12 (bookworm)";

  EXPECT_EQ(OS::GetOSName(machine), "Debian GNU/Linux 12 (bookworm)");
}

TEST(UserLine, SaysUserAndTheComputersName) {
  MemoryMachine machine;
  machine.facts.computerName = "ATTIC-PC";

  EXPECT_EQ(userLine(machine), "User ATTIC-PC");
}

TEST(UserLine, EndsAtTheFirstZeroCharacter) {
  MemoryMachine machine;
  machine.facts.computerName = std::string("ATTIC\0PC", 8);

  EXPECT_EQ(userLine(machine), "User ATTIC");
}

TEST(UserLine, OfAComputerWithoutANameKeepsItsBlank) {
  MemoryMachine machine;
  machine.facts.computerName = "";

  EXPECT_EQ(userLine(machine), "User ");
}

}  // namespace
}  // namespace zelvane::core
