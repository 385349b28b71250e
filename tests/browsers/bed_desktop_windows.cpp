#include <algorithm>

#include "platform/windows/windows_browser_desktop.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_folder_tree.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/browsers/bed_desktop.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

using platform::WindowsFolderTree;

std::string withSlashes(std::string path) {
  std::ranges::replace(path, '\\', '/');
  return path;
}

class WindowsBedDesktop : public BedDesktop {
 public:
  explicit WindowsBedDesktop(const ThrowAwayFolder& folder)
      : home_(withSlashes(folder / "home")),
        roaming_(home_ + "/AppData/Roaming"),
        local_(home_ + "/AppData/Local") {
    makeFolders(roaming_);
    makeFolders(local_);
  }

  const platform::BrowserDesktop& browsers() const override { return browsers_; }
  platform::FolderTree& plainTree() override { return plainTree_; }
  platform::FolderTree& wholeTree() override { return wholeTree_; }
  platform::Files& files() override { return files_; }
  const platform::SpecialFolders& plainFolders() const override { return plainFolders_; }

  std::string firefoxRoot() const override { return roaming_ + "/Mozilla/Firefox"; }
  std::string firefoxCache() const override { return local_ + "/Mozilla/Firefox"; }
  std::string chromiumRoot() const override { return local_ + "/Chromium/User Data"; }
  std::string chromiumCache() const override { return chromiumRoot(); }
  std::string otherFirefoxRoot() const override { return roaming_ + "/librewolf"; }

  std::vector<std::string> startsOfInstallations() const override {
    return {"{roaming}", "{local}"};
  }

  void makeLink(const std::string& path, const std::string& target) const override {
    test::makeLink(path, target);
  }

 private:
  // A shell without any folder of its own.
  static platform::SystemFolders noFolders() {
    return {.special = [](platform::SpecialFolder) { return std::nullopt; },
            .temporary = [] { return std::nullopt; },
            .kept = {}};
  }

  std::string home_;
  std::string roaming_;
  std::string local_;
  platform::WindowsBrowserDesktop browsers_{
      {{"home", home_}, {"roaming", roaming_}, {"local", local_}}};
  WindowsFolderTree plainTree_;
  WindowsFolderTree wholeTree_{{.way = WindowsFolderTree::usualWay(), .listsHiddenFiles = true}};
  platform::WindowsFiles files_;
  platform::WindowsSpecialFolders plainFolders_{noFolders()};
};

}  // namespace

std::unique_ptr<BedDesktop> bedDesktop(const ThrowAwayFolder& folder) {
  return std::make_unique<WindowsBedDesktop>(folder);
}

}  // namespace zelvane::test
