#include <filesystem>
#include <string>

#include "platform/shared/product.h"
#include "platform/windows/windows_identity.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/identity_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::programPlace;
using platform::versionRecordOf;
using platform::WindowsIdentity;

class WindowsIdentityBed : public IdentityBed {
 public:
  platform::Identity& identity() override { return identity_; }

 private:
  WindowsIdentity identity_;
};

std::unique_ptr<IdentityBed> makeWindowsIdentityBed() {
  return std::make_unique<WindowsIdentityBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, IdentityContract, testing::Values(makeWindowsIdentityBed));

TEST(WindowsIdentity, FolderAndNameAreThoseOfTheRunningExecutable) {
  const WindowsIdentity identity;

  EXPECT_EQ(identity.executableName(), "contract_windows");
  EXPECT_TRUE(fs::exists(identity.programFolder() + "\\" + identity.executableName() + ".exe"));
}

TEST(WindowsIdentity, TheDataLieBesideTheProgram) {
  const WindowsIdentity identity;

  EXPECT_EQ(identity.dataFolder(), identity.programFolder());
}

TEST(WindowsIdentity, TheWorkingFolderDoesNotMatter) {
  ChildProcess child([](const Say& say) {
    fs::current_path(fs::temp_directory_path());
    say(WindowsIdentity().programFolder());
  });

  EXPECT_EQ(child.hearLine(), WindowsIdentity().programFolder());
}

TEST(WindowsIdentity, ASuffixCountsInAnyCaseAndOnlyAtTheEnd) {
  EXPECT_EQ(programPlace(R"(C:\Apps\Zelvane.exe)").name, "Zelvane");
  EXPECT_EQ(programPlace(R"(C:\Apps\ZELVANE.EXE)").name, "ZELVANE");
  EXPECT_EQ(programPlace(R"(C:\Apps\my.exe.old)").name, "my.exe.old");
  EXPECT_EQ(programPlace(R"(C:\Apps\.exe)").name, ".exe");
}

TEST(WindowsIdentity, OnlyTheRootOfADriveEndsInASeparator) {
  EXPECT_EQ(programPlace(R"(C:\Zelvane.exe)").folder, R"(C:\)");
  EXPECT_EQ(programPlace(R"(C:\Apps\Zelvane.exe)").folder, R"(C:\Apps)");
  EXPECT_EQ(programPlace(R"(\\server\share\Zelvane.exe)").folder, R"(\\server\share)");
}

TEST(WindowsIdentity, AModuleWithAVersionResourceSpeaksForItself) {
  const auto record = versionRecordOf(GetModuleHandleW(L"kernel32.dll"));

  ASSERT_TRUE(record.has_value());
  EXPECT_EQ(record->companyName, "Microsoft Corporation");
  EXPECT_NE(record->productName, platform::product().productName);
  EXPECT_GE(record->major, 5);
  EXPECT_EQ(record->title, platform::product().title);
  EXPECT_EQ(record->makerAddress, platform::product().makerAddress);
}

TEST(WindowsIdentity, TheProgramsResourceSaysOfTheProductWhatOtherDesktopsSay) {
  const auto record = versionRecordOf(nullptr);
  const platform::VersionRecord product = platform::product();

  ASSERT_TRUE(record.has_value());
  EXPECT_EQ(record->productName, product.productName);
  EXPECT_EQ(record->companyName, product.companyName);
  EXPECT_EQ(record->legalText, product.legalText);
  EXPECT_EQ(record->makerAddress, product.makerAddress);
  EXPECT_EQ(record->major, product.major);
  EXPECT_EQ(record->minor, product.minor);
}

TEST(WindowsIdentity, AModuleWithoutAVersionResourceHasNoRecord) {
  ThrowAwayFolder folder;
  const fs::path bare = folder.path() / "bare.exe";
  const WindowsIdentity identity;
  fs::copy_file(identity.programFolder() + "\\" + identity.executableName() + ".exe", bare);
  const HANDLE change = BeginUpdateResourceW(bare.c_str(), TRUE);
  ASSERT_NE(EndUpdateResourceW(change, FALSE), 0);

  const HMODULE module = LoadLibraryExW(bare.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  const auto record = versionRecordOf(module);
  const bool loaded = module != nullptr && FreeLibrary(module) != 0;

  EXPECT_TRUE(loaded);
  EXPECT_FALSE(record.has_value());
}

}  // namespace
}  // namespace zelvane::test
