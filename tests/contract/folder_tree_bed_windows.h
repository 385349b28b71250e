// A throw-away folder on a Windows disk, and what tests put into it.
#pragma once

#include <string>

#include "platform/windows/handle.h"
#include "platform/windows/windows_folder_tree.h"
#include "tests/contract/folder_tree_contract.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {

class WindowsFolderTreeBed : public FolderTreeBed {
 public:
  using Way = platform::HeldFolder::Options;

  explicit WindowsFolderTreeBed(Way way = platform::WindowsFolderTree::usualWay());

  platform::FolderTree& tree() override { return tree_; }
  std::string root() const override { return folder / "root"; }
  std::string path(const std::string& name) const override { return folder / ("root/" + name); }
  void addFile(const std::string& name) override;
  void addReadOnlyFile(const std::string& name) override;
  void addFolder(const std::string& name) override { makeFolders(path(name)); }
  void addReadOnlyFolder(const std::string& name) override;
  void addUnreadableFolder(const std::string& name) override;
  void addSocket(const std::string& name) override;
  void addLink(const std::string& name, const std::string& target) override;
  void addFileInUse(const std::string& name) override;
  std::string addHiddenFile(const std::string& name) override;
  std::string addHiddenFolder(const std::string& name) override;
  void mountVolume(const std::string& name) override;
  void mountAgain(const std::string& folderName, const std::string& name) override;
  void addDeepFolders(int levels) override { addDeepFolders(levels, "d"); }
  void addDeepFolders(int levels, const std::string& name);
  void vanish(const std::string& name) override;
  void rename(const std::string& from, const std::string& to) override;
  bool has(const std::string& name) const override { return isThere(path(name)); }
  std::string whyNoMounts() const override;
  std::string whyNoSockets() const override;
  std::string whyNotSoDeep() const override;
  std::string whyVanishedLooksEmpty() const override;
  std::string whyPathsDecide() const override;

  ThrowAwayFolder folder;

 private:
  platform::WindowsFolderTree tree_;
  platform::Handle inUse_;
};

}  // namespace zelvane::test
