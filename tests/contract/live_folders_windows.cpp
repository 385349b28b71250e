#include <optional>

#include <windows.h>

#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/contract/live_folders_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

using platform::LiveFinding;
using platform::LiveFolders;
using platform::SpecialFolder;
using platform::SystemFolders;
using platform::WindowsFiles;
using platform::WindowsSpecialFolders;

SystemFolders noFolders() {
  return {.special = [](SpecialFolder) { return std::nullopt; },
          .temporary = [] { return std::nullopt; },
          .kept = {}};
}

// A file that is kept, and whose content is what can be erased.
class FileStore : public platform::LiveStore {
 public:
  explicit FileStore(std::string path) : path_(std::move(path)) {}

  bool holdsAnything() const override { return !WindowsFiles().readWhole(path_, 100).empty(); }
  void erase() override { WindowsFiles().createBeside(path_)->publish(); }

 private:
  std::string path_;
};

// What a program keeps in a throw-away folder, as far as it is there.
class FolderSource : public platform::LiveSource {
 public:
  void find(SpecialFolder special, LiveFinding& finding) const override {
    if (special != SpecialFolder::history) return;
    if (isThere(store)) {
      finding.places.push_back(store);
      finding.folder.addStore("visits", std::make_unique<FileStore>(store));
    }
    if (isThere(realFolder)) {
      finding.places.push_back(realFolder);
      finding.folder.addRealFolder("real", realFolder);
    }
  }

  ThrowAwayFolder folder;
  const std::string store = folder / "store";
  const std::string realFolder = folder / "real";
};

class WindowsLiveFoldersBed : public LiveFoldersBed {
 public:
  LiveFolders& live() override { return live_; }
  SpecialFolder special() const override { return SpecialFolder::history; }
  std::string addStore() override {
    makeFile(source_.store);
    return source_.store;
  }
  std::string addRealFolder() override {
    makeFile(source_.realFolder + "\\file");
    return source_.realFolder;
  }
  void holdStore() override {
    held_ = platform::Handle(CreateFileW(platform::longPath(source_.store).c_str(), GENERIC_READ,
                                         FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  }
  bool storeHoldsAnything() const override { return FileStore(source_.store).holdsAnything(); }
  bool realFolderHas(const std::string& name) const override {
    return isThere(source_.realFolder + "\\" + name);
  }
  std::string addOtherFolder() override {
    makeFile(source_.folder / "other/other");
    return source_.folder / "other";
  }

 private:
  FolderSource source_;
  WindowsSpecialFolders folders_{noFolders()};
  platform::WindowsFolderTree tree_;
  LiveFolders live_{folders_, tree_, {source_}};
  platform::Handle held_;
};

INSTANTIATE_TEST_SUITE_P(Windows, LiveFoldersContract,
                         testing::Values([]() -> std::unique_ptr<LiveFoldersBed> {
                           return std::make_unique<WindowsLiveFoldersBed>();
                         }));

// As a folder tree they keep that contract, too, for all that is not theirs.
class LiveOverWindowsBed : public WindowsFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return live_; }

 private:
  WindowsSpecialFolders folders_{noFolders()};
  LiveFolders live_{folders_, WindowsFolderTreeBed::tree(), {}};
};

INSTANTIATE_TEST_SUITE_P(LiveOverWindows, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<LiveOverWindowsBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
