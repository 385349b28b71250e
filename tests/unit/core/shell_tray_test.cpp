#include "core/shell_tray.h"

#include <bit>
#include <cstddef>

#include "tests/unit/core/tray_icons_test.h"

namespace zelvane::core {
namespace {

class ShellTrayTest : public TrayIconsTest {};

using Bytes = std::array<unsigned char, 88>;

Bytes recordBytes(const std::string& tip) {
  return std::bit_cast<Bytes>(ShellTray::record(0x00A1B2C4, 1, kWholeRecord, 517, 0x01020304, tip));
}

std::string tipBytes(const std::string& tip) {
  const Bytes bytes = recordBytes(tip);
  return {bytes.begin() + 24, bytes.end()};
}

TEST_F(ShellTrayTest, TheRecordHasItsFixedLayout) {
  Bytes expected{88,   0,    0,    0,      // size
                 0xC4, 0xB2, 0xA1, 0,      // window
                 1,    0,    0,    0,      // identifier
                 7,    0,    0,    0,      // flags
                 0x05, 0x02, 0,    0,      // callback message, 517
                 0x04, 0x03, 0x02, 0x01,   // icon
                 'T',  'i',  'p',  '\0'};  // and zeros to the end

  EXPECT_EQ(recordBytes("Tip"), expected);
}

TEST_F(ShellTrayTest, ATipOfSixtyThreeLettersHasItsZero) {
  EXPECT_EQ(tipBytes(std::string(63, 'x')), std::string(63, 'x') + '\0');
}

TEST_F(ShellTrayTest, ATipOfSixtyFourLettersFillsItsFieldAndHasNoZero) {
  EXPECT_EQ(tipBytes(std::string(64, 'x')), std::string(64, 'x'));
}

TEST_F(ShellTrayTest, ALongerTipIsCutAtSixtyFourBytes) {
  EXPECT_EQ(tipBytes(std::string(65, 'x')), std::string(64, 'x'));
  EXPECT_EQ(tipBytes(std::string(1000, 'x')), std::string(64, 'x'));
}

TEST_F(ShellTrayTest, AnEmptyTipIsZeros) { EXPECT_EQ(tipBytes(""), std::string(64, '\0')); }

TEST_F(ShellTrayTest, ShowingAddsTheWindowsIconWithTheTip) {
  ShellTray::ShowIcon(tray, form, "Zelvane v1.0");

  ASSERT_EQ(calls(), std::vector<std::string>{"add"});
  EXPECT_EQ(lastRecord(), ShellTray::record(tray.windowHandle("frmTest"), 1, 7, 517,
                                            tray.iconHandle("frmTest"), "Zelvane v1.0"));
  EXPECT_EQ(tray.tip(), "Zelvane v1.0");
}

TEST_F(ShellTrayTest, ShowingTwiceLeavesTheFirstIcon) {
  ShellTray::ShowIcon(tray, form, "first");
  ShellTray::ShowIcon(tray, form, "second");

  EXPECT_EQ(tray.tip(), "first");
}

TEST_F(ShellTrayTest, RemovingNamesTheSameIconWithoutATip) {
  ShellTray::ShowIcon(tray, form, "Zelvane v1.0");

  ShellTray::RemoveIcon(tray, form);

  EXPECT_EQ(lastRecord(), ShellTray::record(tray.windowHandle("frmTest"), 1, 7, 1,
                                            tray.iconHandle("frmTest"), ""));
  EXPECT_EQ(tray.tip(), std::nullopt);
}

TEST_F(ShellTrayTest, RemovingAnIconThatIsNotThereIsHarmless) {
  EXPECT_NO_THROW(ShellTray::RemoveIcon(tray, form));
  EXPECT_NO_THROW(ShellTray::RemoveIcon(tray, form));
}

}  // namespace
}  // namespace zelvane::core
