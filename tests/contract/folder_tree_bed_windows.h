// A throw-away folder on a Windows disk, and what tests put into it.
#pragma once

#include <string>

#include "platform/windows/handle.h"
#include "platform/windows/windows_folder_tree.h"
#include "tests/contract/folder_tree_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// Any path may be long, and end in names that the system usually changes.
void makeFolders(const std::string& path);
void makeFile(const std::string& path, const std::string& content = "content");
void makeLink(const std::string& path, const std::string& target);
bool isThere(const std::string& path);

// Attributes as the system counts them.
void setAttributes(const std::string& path, DWORD attributes);
DWORD attributesOf(const std::string& path);

// Nobody may do anything with it any more but give rights back.
void denyEverything(const std::string& path);

class WindowsFolderTreeBed : public FolderTreeBed {
 public:
  using Options = platform::WindowsFolderTree::Options;

  explicit WindowsFolderTreeBed(Options options = platform::WindowsFolderTree::usualOptions());

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
