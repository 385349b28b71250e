#include <filesystem>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <windows.h>

#include "platform/error.h"
#include "platform/windows/long_path.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_files.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/files_contract.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/support/remove_tree.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Error;
using platform::ErrorNumber;
using platform::Handle;
using platform::longPath;
using platform::WindowsFiles;

// Everything in a folder, hidden or not.
std::size_t entriesOf(const std::string& path) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(platform::wideText(path)), fs::directory_iterator()));
}

class WindowsFilesBed : public FilesBed {
 public:
  platform::Files& files() override { return files_; }
  std::string path(const std::string& name) const override { return folder_ / name; }
  void addFile(const std::string& name, const std::string& content) override {
    makeFile(path(name), content);
  }
  void addFolder(const std::string& name) override { makeFolders(path(name)); }
  void addLink(const std::string& name, const std::string& target) override {
    makeLink(path(name), target);
  }
  void addSocket(const std::string&) override { throw std::logic_error("no sockets here"); }
  void protectFolder(const std::string& name) override { denyEverything(path(name)); }
  std::optional<std::string> content(const std::string& name) const override {
    return isThere(path(name)) ? std::optional(folder_.read(name)) : std::nullopt;
  }
  bool isLink(const std::string& name) const override {
    return (attributesOf(path(name)) & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  }
  std::size_t entries(const std::string& folder) const override { return entriesOf(path(folder)); }
  std::string whyNoSockets() const override {
    return "sockets are in folders only where Windows holds a Linux";
  }
  std::string whyReadersForbidReplacing() const override {
    return runsUnderWine() ? "Wine replaces no file that anyone has open" : "";
  }
  std::string whyNoLinks() const override {
    return runsUnderWine() ? "Wine takes a link for what it leads to" : "";
  }

 private:
  ThrowAwayFolder folder_;
  WindowsFiles files_;
};

INSTANTIATE_TEST_SUITE_P(Windows, FilesContract, testing::Values([]() -> std::unique_ptr<FilesBed> {
                           return std::make_unique<WindowsFilesBed>();
                         }));

class WindowsFilesTest : public testing::Test {
 protected:
  void replace(const std::string& path, const std::string& content) {
    const auto file = files.createBeside(path);
    file->write(content);
    file->publish();
  }

  // Who may do what with a file; all of them are permissions.
  std::vector<const ACCESS_ALLOWED_ACE*> rulesOf(const std::string& path) {
    const std::wstring name = longPath(path);
    DWORD size = 0;
    GetFileSecurityW(name.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    access_.resize(size);
    GetFileSecurityW(name.c_str(), DACL_SECURITY_INFORMATION, access_.data(), size, &size);
    ACL* rules = nullptr;
    BOOL present = FALSE;
    BOOL usual = FALSE;
    GetSecurityDescriptorDacl(access_.data(), &present, &rules, &usual);
    std::vector<const ACCESS_ALLOWED_ACE*> found;
    void* rule = nullptr;
    for (DWORD at = 0; rules != nullptr && GetAce(rules, at, &rule) != 0; ++at) {
      found.push_back(static_cast<const ACCESS_ALLOWED_ACE*>(rule));
    }
    return found;
  }

  ThrowAwayFolder folder;
  WindowsFiles files;

 private:
  std::vector<char> access_;
};

TEST_F(WindowsFilesTest, LongPathsAndNamesThatWindowsChangesAreWrittenReadAndDeleted) {
  const std::string deep = std::string(200, 'a') + "/" + std::string(200, 'b');
  makeFolders(folder / deep);

  for (const std::string& name : {deep + "/file", deep + "/dot.", std::string("nul")}) {
    replace(folder / name, "content");
    EXPECT_TRUE(files.exists(folder / name)) << name;
    EXPECT_EQ(files.readWhole(folder / name, 100), "content") << name;
    files.remove(folder / name);
    EXPECT_FALSE(files.exists(folder / name)) << name;
  }
}

TEST_F(WindowsFilesTest, ANameMayHaveOneLetter) {
  replace(folder / "a", "content");

  EXPECT_EQ(files.readWhole(folder / "a", 100), "content");
}

TEST_F(WindowsFilesTest, AReadOnlyFileIsReplacedAndDeleted) {
  makeFile(folder / "file", "old");
  setAttributes(folder / "file", FILE_ATTRIBUTE_READONLY);
  makeFile(folder / "other", "old");
  setAttributes(folder / "other", FILE_ATTRIBUTE_READONLY);

  replace(folder / "file", "new");
  files.remove(folder / "other");

  EXPECT_EQ(files.readWhole(folder / "file", 100), "new");
  EXPECT_FALSE(files.exists(folder / "other"));
}

TEST_F(WindowsFilesTest, AFileThatNobodyMayShareIsNotReplacedAndNothingElseIsLeft) {
  makeFile(folder / "file", "old");
  {
    const Handle held(CreateFileW(longPath(folder / "file").c_str(), GENERIC_READ, 0, nullptr,
                                  OPEN_EXISTING, 0, nullptr));

    EXPECT_THROW(replace(folder / "file", "new"), Error);
    EXPECT_THROW(files.remove(folder / "file"), Error);
  }
  EXPECT_EQ(files.readWhole(folder / "file", 100), "old");
  EXPECT_EQ(entriesOf(folder / ""), 1U);
}

// Without the fixture, of which the second process would leave one.
TEST(WindowsFiles, AKillLeavesNothingOfAPendingFile) {
  ChildProcess program([](const Say& say) {
    const ThrowAwayFolder own;
    const auto file = WindowsFiles().createBeside(own / "file");
    file->write("content");
    say(own / "");
    stayUntilKilled();
  });
  const std::string place = program.hearLine();

  program.kill();

  EXPECT_EQ(entriesOf(place), 0U);
  removeTree(platform::wideText(place));
}

TEST_F(WindowsFilesTest, ANewFileGivesStrangersNoRight) {
  replace(folder / "file", "content");

  for (const ACCESS_ALLOWED_ACE* rule : rulesOf(folder / "file")) {
    auto* holder = const_cast<DWORD*>(&rule->SidStart);
    EXPECT_FALSE(IsWellKnownSid(holder, WinWorldSid));
    EXPECT_FALSE(IsWellKnownSid(holder, WinBuiltinUsersSid));
    EXPECT_FALSE(IsWellKnownSid(holder, WinAuthenticatedUserSid));
  }
  EXPECT_FALSE(rulesOf(folder / "file").empty());
}

TEST_F(WindowsFilesTest, ADeviceIsNoFile) {
  EXPECT_FALSE(files.exists("\\\\.\\NUL"));
  EXPECT_THROW(files.open("\\\\.\\NUL"), Error);
}

TEST_F(WindowsFilesTest, AZeroByteDoesNotCutAPath) {
  makeFile(folder / "file");
  const std::string path = (folder / "file") + std::string("\0more", 5);

  EXPECT_FALSE(files.exists(path));
  EXPECT_THROW(files.open(path), Error);
  EXPECT_THROW(files.remove(path), Error);
  EXPECT_THROW(files.createBeside(path), Error);
  EXPECT_TRUE(files.exists(folder / "file"));
}

TEST_F(WindowsFilesTest, AStreamOfAFileIsNoTarget) {
  makeFile(folder / "file");

  EXPECT_THROW(files.createBeside(folder / "file:stream"), Error);
  EXPECT_THROW(files.remove(folder / "file::$DATA"), Error);
  EXPECT_TRUE(files.exists(folder / "file"));
}

TEST_F(WindowsFilesTest, UnderWineALinkIsNotDeletedBecauseItsTargetWouldBe) {
  if (!runsUnderWine()) GTEST_SKIP() << "Windows has links of its own, see the contract";
  makeFile(folder / "target");
  makeLink(folder / "link", folder / "target");

  EXPECT_THROW(files.remove(folder / "link"), Error);
  EXPECT_TRUE(files.exists(folder / "target"));
}

}  // namespace
}  // namespace zelvane::test
