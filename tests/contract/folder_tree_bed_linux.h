// A throw-away folder on the disk, and what tests put into it.
#pragma once

#include <optional>

#include "platform/linux/descriptor.h"
#include "platform/linux/linux_folder_tree.h"
#include "tests/contract/folder_tree_contract.h"
#include "tests/support/linux/private_mounts.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

class LinuxFolderTreeBed : public FolderTreeBed {
 public:
  explicit LinuxFolderTreeBed(platform::LinuxFolderTree::Options options = {});

  platform::FolderTree& tree() override { return tree_; }
  std::string root() const override { return folder / "root"; }
  std::string path(const std::string& name) const override { return root() + "/" + name; }
  void addFile(const std::string& name) override;
  void addReadOnlyFile(const std::string& name) override;
  void addFolder(const std::string& name) override;
  void addReadOnlyFolder(const std::string& name) override;
  void addUnreadableFolder(const std::string& name) override;
  void addSocket(const std::string& name) override;
  void addLink(const std::string& name, const std::string& target) override;
  void addFileInUse(const std::string& name) override;
  std::string addHiddenFile(const std::string& name) override;
  std::string addHiddenFolder(const std::string& name) override;
  void mountVolume(const std::string& name) override;
  void mountAgain(const std::string& folderName, const std::string& name) override;
  void addDeepFolders(int levels) override;
  void vanish(const std::string& name) override;
  void rename(const std::string& from, const std::string& to) override;
  bool has(const std::string& name) const override { return folder.has("root/" + name); }
  std::string whyNoMounts() const override;
  std::string whyNoRefusals() const override;

  ThrowAwayFolder folder;

 private:
  PrivateMounts& mounts() const;

  mutable std::optional<PrivateMounts> mounts_;  // made when the first test asks
  platform::LinuxFolderTree tree_;
  platform::Descriptor inUse_;
};

}  // namespace zelvane::test
