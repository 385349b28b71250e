#include "platform/linux/linux_browser_desktop.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_special_folders.h"
#include "tests/browsers/bed_desktop.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

class LinuxBedDesktop : public BedDesktop {
 public:
  explicit LinuxBedDesktop(const ThrowAwayFolder& folder) : environment_(environmentIn(folder)) {}

  const platform::BrowserDesktop& browsers() const override { return browsers_; }
  platform::FolderTree& plainTree() override { return plainTree_; }
  platform::FolderTree& wholeTree() override { return wholeTree_; }
  platform::Files& files() override { return files_; }
  const platform::SpecialFolders& plainFolders() const override { return plainFolders_; }

  std::string firefoxRoot() const override { return environment_.home + "/.mozilla/firefox"; }
  std::string firefoxCache() const override { return environment_.cacheHome + "/mozilla/firefox"; }
  std::string chromiumRoot() const override { return environment_.configHome + "/chromium"; }
  std::string chromiumCache() const override { return environment_.cacheHome + "/chromium"; }
  std::string otherFirefoxRoot() const override {
    return environment_.configHome + "/mozilla/firefox";
  }

  std::vector<std::string> startsOfInstallations() const override { return {"{home}", "{config}"}; }

  void makeLink(const std::string& path, const std::string& target) const override {
    std::filesystem::create_symlink(target, path);
  }

 private:
  platform::Environment environment_;
  platform::LinuxBrowserDesktop browsers_{environment_};
  platform::LinuxFolderTree plainTree_;
  platform::LinuxFolderTree wholeTree_{{.listsHiddenFiles = true}};
  platform::LinuxFiles files_;
  platform::LinuxSpecialFolders plainFolders_{environment_, environment_.tmpDir};
};

}  // namespace

std::unique_ptr<BedDesktop> bedDesktop(const ThrowAwayFolder& folder) {
  return std::make_unique<LinuxBedDesktop>(folder);
}

}  // namespace zelvane::test
