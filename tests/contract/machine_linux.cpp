#include <array>
#include <filesystem>
#include <string>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <sys/utsname.h>

#include "platform/linux/linux_machine.h"
#include "platform/linux/os_release.h"
#include "platform/linux/route_table.h"
#include "tests/contract/machine_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

using platform::defaultInterface;
using platform::LinuxMachine;
using platform::releaseName;

class LinuxMachineBed : public MachineBed {
 public:
  platform::Machine& machine() override { return machine_; }

 private:
  LinuxMachine machine_;
};

std::unique_ptr<MachineBed> makeLinuxMachineBed() { return std::make_unique<LinuxMachineBed>(); }

INSTANTIATE_TEST_SUITE_P(Linux, MachineContract, testing::Values(makeLinuxMachineBed));

std::string systemOf(const ThrowAwayFolder& root) {
  return std::get<std::string>(LinuxMachine(root.path().string()).system());
}

TEST(LinuxMachine, TheComputerNameIsTheKernels) {
  utsname names{};
  uname(&names);

  EXPECT_EQ(LinuxMachine().computerName(), names.nodename);
}

TEST(LinuxMachine, TheSystemIsNamedAsItsReleaseNamesItself) {
  ThrowAwayFolder root;
  root.write("etc/os-release", "NAME=\"Penguin\"\nPRETTY_NAME=\"Penguin 7 (waddling)\"\n");

  EXPECT_EQ(systemOf(root), "Penguin 7 (waddling)");
}

TEST(LinuxMachine, TheUsualPlaceOfTheReleasesNameIsALink) {
  ThrowAwayFolder root;
  root.write("usr/lib/os-release", "PRETTY_NAME=Linked\n");
  std::filesystem::create_directory(root.path() / "etc");
  std::filesystem::create_symlink("../usr/lib/os-release", root.path() / "etc/os-release");

  EXPECT_EQ(systemOf(root), "Linked");
}

TEST(LinuxMachine, WithoutTheUsualPlaceTheOtherCounts) {
  ThrowAwayFolder root;
  root.write("usr/lib/os-release", "PRETTY_NAME=Behind\n");

  EXPECT_EQ(systemOf(root), "Behind");
}

TEST(LinuxMachine, ASystemWithoutARelaseIsLinux) {
  EXPECT_EQ(systemOf(ThrowAwayFolder()), "Linux");
}

TEST(LinuxMachine, WithoutARouteToOthersThereIsNoAddress) {
  ThrowAwayFolder root;
  root.write("proc/net/route", "Iface Destination Gateway Flags RefCnt Use Metric Mask\n");

  EXPECT_EQ(LinuxMachine(root.path().string()).localAddress(), std::nullopt);
  EXPECT_EQ(LinuxMachine(ThrowAwayFolder().path().string()).localAddress(), std::nullopt);
}

// Every system has "lo", so it stands in for an interface that leads to others.
TEST(LinuxMachine, TheAddressIsThatOfTheInterfaceThatLeadsToOthers) {
  ThrowAwayFolder root;
  root.write("proc/net/route", "lo 00000000 0102A8C0 0003 0 0 100 00000000 0 0 0\n");

  EXPECT_EQ(LinuxMachine(root.path().string()).localAddress(), "127.0.0.1");
}

TEST(LinuxMachine, AnInterfaceThatIsGoneHasNoAddress) {
  ThrowAwayFolder root;
  root.write("proc/net/route", "gone7 00000000 0102A8C0 0003 0 0 100 00000000 0 0 0\n");

  EXPECT_EQ(LinuxMachine(root.path().string()).localAddress(), std::nullopt);
}

TEST(ReleaseName, IsWrittenInDoubleQuotesInSingleOnesOrInNone) {
  EXPECT_EQ(releaseName("PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n"),
            "Debian GNU/Linux 12 (bookworm)");
  EXPECT_EQ(releaseName("PRETTY_NAME='A \"quoted\" one'"), "A \"quoted\" one");
  EXPECT_EQ(releaseName("PRETTY_NAME=Short\r\n"), "Short");
}

TEST(ReleaseName, ABackslashProtectsTheCharacterBehindIt) {
  EXPECT_EQ(releaseName(R"(PRETTY_NAME="A \"quoted\" \$one\\")"), R"(A "quoted" $one\)");
  EXPECT_EQ(releaseName(R"(PRETTY_NAME='A \kept one')"), R"(A \kept one)");
}

TEST(ReleaseName, TheLastLineCountsAndOthersDoNot) {
  EXPECT_EQ(releaseName("#PRETTY_NAME=a\nPRETTY_NAME=b\nPRETTY_NAME=c\nMY_PRETTY_NAME=d\n"), "c");
}

TEST(ReleaseName, IsLinuxWhereThereIsNone) {
  EXPECT_EQ(releaseName(""), "Linux");
  EXPECT_EQ(releaseName("\n\nNAME=Debian"), "Linux");
  EXPECT_EQ(releaseName("PRETTY_NAME=\"\"\n"), "Linux");
}

constexpr auto kHeadings =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";

std::optional<std::string> defaultOf(const std::string& routes) {
  return defaultInterface(kHeadings + routes);
}

TEST(RouteTable, TheRouteThatLeadsEverywhereNamesTheInterface) {
  EXPECT_EQ(defaultOf("docker0\t000011AC\t00000000\t0001\t0\t0\t0\t0000FFFF\t0\t0\t0   \n"
                      "eth0\t00000000\t0102A8C0\t0003\t0\t0\t0\t00000000\t0\t0\t0   \n"),
            "eth0");
}

TEST(RouteTable, OfSeveralTheLowestMetricWinsAndAmongEqualsTheFirst) {
  EXPECT_EQ(defaultOf("wlan0 00000000 0102A8C0 0003 0 0 600 00000000 0 0 0\n"
                      "eth0 00000000 0102A8C0 0003 0 0 100 00000000 0 0 0\n"
                      "eth1 00000000 0102A8C0 0003 0 0 100 00000000 0 0 0\n"),
            "eth0");
}

TEST(RouteTable, ARouteThatIsDownOrRefusesLeadsNowhere) {
  EXPECT_EQ(defaultOf("eth0 00000000 0102A8C0 0002 0 0 0 00000000 0 0 0\n"
                      "lo 00000000 00000000 0201 0 0 0 00000000 0 0 0\n"),
            std::nullopt);
}

TEST(RouteTable, HalfOfTheWorldIsNotEverywhere) {
  EXPECT_EQ(defaultOf("tun0 00000000 0102A8C0 0003 0 0 0 00000080 0 0 0\n"), std::nullopt);
}

TEST(RouteTable, WhatIsNoRouteIsPassedOver) {
  EXPECT_EQ(defaultOf("\n\neth0 0000\neth0 xyz 0 0003 0 0 0 00000000\n"
                      "eth0 00000000 0 0003 0 0 - 00000000\n"
                      "eth1 00000000 0 0003 0 0 7 00000000"),
            "eth1");
  EXPECT_EQ(defaultInterface(""), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
