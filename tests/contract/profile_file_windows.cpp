#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>
#include <sddl.h>

#include "platform/windows/private_access.h"
#include "platform/windows/systems_profile.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_profile_file.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/profile_file_contract.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/throw_away_key.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using platform::findInSystemsProfile;
using platform::isKeptInRegistry;
using platform::wideText;
using platform::WindowsProfileFile;

constexpr const char* kFile = "win.ini";

class WindowsProfileFileBed : public ProfileFileBed {
 public:
  platform::ProfileFile& profile() override { return profile_; }
  std::string content() const override { return folder_.read(kFile); }
  void setContent(const std::string& content) override { folder_.write(kFile, content); }
  void makeUnwritable() override {
    fs::remove(folder_ / kFile);
    fs::create_directory(folder_ / kFile);
  }

 private:
  ThrowAwayFolder folder_;
  WindowsProfileFile profile_{folder_ / kFile};
};

std::unique_ptr<ProfileFileBed> makeWindowsProfileFileBed() {
  return std::make_unique<WindowsProfileFileBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, ProfileFileContract, testing::Values(makeWindowsProfileFileBed));

class WindowsProfileFileTest : public testing::Test {
 protected:
  // Who may do what with a file, in the system's language for it.
  static std::wstring rulesOf(const std::string& path) {
    std::vector<std::byte> rules(4096);
    DWORD size = 0;
    GetFileSecurityW(wideText(path).c_str(), DACL_SECURITY_INFORMATION, rules.data(),
                     static_cast<DWORD>(rules.size()), &size);
    wchar_t* allocated = nullptr;
    ConvertSecurityDescriptorToStringSecurityDescriptorW(
        rules.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &allocated, nullptr);
    const std::unique_ptr<wchar_t, platform::FreeLocal> text(allocated);
    return text.get();
  }

  ThrowAwayFolder folder;
  WindowsProfileFile profile{folder / kFile};
};

TEST_F(WindowsProfileFileTest, LookingMakesNothingAndWritingLeavesNothingBesideTheFile) {
  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);
  EXPECT_FALSE(folder.has(kFile));

  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));
  EXPECT_TRUE(profile.write("Extensions", "DVK", "again"));

  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST_F(WindowsProfileFileTest, AFailedWriteLeavesNothingBesideTheFile) {
  fs::create_directory(folder / kFile);

  EXPECT_FALSE(profile.write("Extensions", "DVK", "zelvane"));

  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST_F(WindowsProfileFileTest, AFileThatAnotherProgramHoldsStaysAsItIsAlone) {
  const std::string path = folder.write(kFile, "[Extensions]\r\nDVK=old\r\n");
  const HANDLE held = CreateFileW(wideText(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);

  const bool written = profile.write("Extensions", "DVK", "new");
  CloseHandle(held);

  EXPECT_FALSE(written);
  EXPECT_EQ(profile.find("Extensions", "DVK"), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST_F(WindowsProfileFileTest, AFileInWideCharactersStaysOne) {
  folder.write(kFile, "\xFF\xFE[\0s\0]\0\r\0\n\0a\0=\0\xE9\0\r\0\n\0"s);

  EXPECT_EQ(profile.find("s", "a"), "é");
  EXPECT_TRUE(profile.write("s", "a", "ü"));

  EXPECT_EQ(folder.read(kFile), "\xFF\xFE[\0s\0]\0\r\0\n\0a\0=\0\xFC\0\r\0\n\0"s);
}

// Other users read it as well.
TEST_F(WindowsProfileFileTest, TheFileMayBeUsedByWhomTheRulesOfItsFolderSay) {
  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));
  folder.write("made by another program");

  EXPECT_EQ(rulesOf(folder / kFile), rulesOf(folder / "made by another program"));
}

TEST_F(WindowsProfileFileTest, WhereTheFolderIsMissingWritingSaysSo) {
  WindowsProfileFile missing(folder / "missing\\win.ini");

  EXPECT_EQ(missing.find("Extensions", "DVK"), std::nullopt);
  EXPECT_FALSE(missing.write("Extensions", "DVK", "zelvane"));
}

TEST_F(WindowsProfileFileTest, TheSystemsFunctionsFindWhatWasWrittenHere) {
  WindowsProfileFile other(folder / "other.ini");

  EXPECT_TRUE(other.write("Extensions", "DVK", R"(C:\ZelvaneZelvane.exe ^.DVK)"));

  EXPECT_EQ(findInSystemsProfile(wideText(folder / "other.ini"), "extensions", "dvk"),
            R"(C:\ZelvaneZelvane.exe ^.DVK)");
}

// The functions for sections in the registry, here with a file that the system does not know.
class SystemsProfileTest : public testing::Test {
 protected:
  bool write(const std::string& key, const std::string& text) const {
    return platform::writeToSystemsProfile(file, "s", key, text);
  }
  auto find(const std::string& key) const { return findInSystemsProfile(file, "s", key); }

  ThrowAwayFolder folder;
  const std::wstring file = wideText(folder / "other.ini");
};

TEST_F(SystemsProfileTest, WhatWasWrittenIsFoundAndNothingElse) {
  EXPECT_TRUE(write("a", R"(C:\ZelvaneZelvane.exe ^.DVK)"));
  EXPECT_TRUE(write("empty", ""));

  EXPECT_EQ(find("a"), R"(C:\ZelvaneZelvane.exe ^.DVK)");
  EXPECT_EQ(find("empty"), "");
  EXPECT_EQ(find("b"), std::nullopt);
}

TEST_F(SystemsProfileTest, ATextThatStandsForAMissingOneIsFound) {
  EXPECT_TRUE(write("a", "absent"));
  EXPECT_TRUE(write("b", "missing"));

  EXPECT_EQ(find("a"), "absent");
  EXPECT_EQ(find("b"), "missing");
}

TEST_F(SystemsProfileTest, AFolderThatIsMissingIsRefused) {
  const std::wstring missing = wideText(folder / "missing\\other.ini");

  EXPECT_FALSE(platform::writeToSystemsProfile(missing, "s", "a", "text"));
}

TEST(SystemsProfile, TheSystemKeepsExtensionsInTheRegistryAndNotEverySectionOfEveryFile) {
  EXPECT_TRUE(isKeptInRegistry(L"win.ini", "Extensions"));
  EXPECT_FALSE(isKeptInRegistry(L"win.ini", "Zelvane test"));
  EXPECT_FALSE(isKeptInRegistry(L"win.ini", std::string("Extensions\0x", 12)));
  EXPECT_FALSE(isKeptInRegistry(L"zelvane test.ini", "Extensions"));
}

// The system's own WIN.INI, while the user's branch of the registry is a throw-away key. Windows
// may go to the real branch all the same, so the entry bears the test's name and is taken away.
class SystemsWinIniTest : public testing::Test {
 protected:
  SystemsWinIniTest() { RegOverridePredefKey(HKEY_CURRENT_USER, branch.key("user").get()); }
  ~SystemsWinIniTest() override {
    WritePrivateProfileStringW(L"Extensions", wideText(entry).c_str(), nullptr, L"win.ini");
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
  }

  const std::string entry = nameOfThisTest();
  ThrowAwayKey branch;
  WindowsProfileFile profile;
};

TEST_F(SystemsWinIniTest, WhatIsWrittenBelowExtensionsIsFoundAndInTheUsersBranch) {
  EXPECT_EQ(profile.find("Extensions", entry), std::nullopt);

  EXPECT_TRUE(profile.write("Extensions", entry, R"(C:\ZelvaneZelvane.exe ^.DVK)"));

  EXPECT_EQ(profile.find("extensions", entry), R"(C:\ZelvaneZelvane.exe ^.DVK)");
  EXPECT_NE(
      platform::readValue(
          platform::openKey(HKEY_CURRENT_USER,
                            LR"(Software\Microsoft\Windows NT\CurrentVersion\Extensions)", KEY_READ)
              .key.get(),
          wideText(entry)),
      std::nullopt);
}

TEST_F(SystemsWinIniTest, AnEmptyEntryIsThereAndALineBreakIsRefused) {
  EXPECT_FALSE(profile.write("Extensions", entry, "a\nb"));
  EXPECT_EQ(profile.find("Extensions", entry), std::nullopt);

  EXPECT_TRUE(profile.write("Extensions", entry, ""));
  EXPECT_EQ(profile.find("Extensions", entry), "");
}

TEST_F(SystemsWinIniTest, ALongTextIsCutAndNeverInsideACharacter) {
  const std::string start(251, 'x');
  EXPECT_TRUE(profile.write("Extensions", entry, start + "😀"));
  EXPECT_EQ(profile.find("Extensions", entry), start);

  EXPECT_TRUE(profile.write("Extensions", entry, std::string(300, 'x')));
  EXPECT_EQ(profile.find("Extensions", entry), std::string(254, 'x'));
}

// Only looked at, because it is the file in the system's folder.
TEST_F(SystemsWinIniTest, AnotherSectionIsLookedForInTheFile) {
  EXPECT_EQ(profile.find("Zelvane test", "missing"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
