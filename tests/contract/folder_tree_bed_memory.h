// A folder tree in memory, and what tests put into it.
#pragma once

#include "platform/memory/memory_folder_tree.h"
#include "tests/contract/folder_tree_contract.h"

namespace zelvane::test {

class MemoryFolderTreeBed : public FolderTreeBed {
 public:
  MemoryFolderTreeBed() { fileSystem.addFolder(root()); }

  platform::FolderTree& tree() override { return tree_; }
  std::string root() const override { return "/home/user/root"; }
  std::string path(const std::string& name) const override { return root() + "/" + name; }
  void addFile(const std::string& name) override { fileSystem.addFile(path(name)); }
  void addReadOnlyFile(const std::string& name) override {
    fileSystem.addFile(path(name), "content", {.readOnly = true});
  }
  void addFolder(const std::string& name) override { fileSystem.addFolder(path(name)); }
  void addReadOnlyFolder(const std::string& name) override {
    fileSystem.addFolder(path(name), {.readOnly = true});
  }
  void addUnreadableFolder(const std::string& name) override {
    fileSystem.addFolder(path(name), {.unreadable = true});
  }
  void addSocket(const std::string& name) override { fileSystem.addSocket(path(name)); }
  void addLink(const std::string& name, const std::string& target) override {
    fileSystem.addLink(path(name), target);
  }
  void addFileInUse(const std::string& name) override {
    fileSystem.addFile(path(name), "content", {.inUse = true});
  }
  std::string addHiddenFile(const std::string& name) override {
    fileSystem.addFile(path(name), "content", {.hidden = true});
    return name;
  }
  std::string addHiddenFolder(const std::string& name) override {
    fileSystem.addFolder(path(name), {.hidden = true});
    return name;
  }
  void mountVolume(const std::string& name) override {
    fileSystem.addFolder(path(name), {.mountPoint = true});
  }
  void mountAgain(const std::string&, const std::string& name) override { mountVolume(name); }
  void addDeepFolders(int levels) override {
    std::string folder = root();
    for (int level = 0; level < levels; ++level) {
      folder += "/d";
      fileSystem.addFile(folder + "/f");
    }
  }
  void vanish(const std::string& name) override { fileSystem.vanish(path(name)); }
  void rename(const std::string& from, const std::string& to) override {
    fileSystem.rename(path(from), path(to));
  }
  bool has(const std::string& name) const override { return fileSystem.has(path(name)); }

  platform::MemoryFileSystem fileSystem;

 private:
  platform::MemoryFolderTree tree_{fileSystem};
};

}  // namespace zelvane::test
