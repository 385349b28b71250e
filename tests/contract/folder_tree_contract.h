// What every folder tree promises, and the world in which a tenant is asked to keep it.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/folder_tree.h"

namespace zelvane::test {

// Names are relative to the root, parted by "/"; folders above a new entry are made.
class FolderTreeBed {
 public:
  virtual ~FolderTreeBed() = default;

  virtual platform::FolderTree& tree() = 0;

  // A folder that exists and is empty.
  virtual std::string root() const = 0;

  // The path of something below the root.
  virtual std::string path(const std::string& name) const = 0;

  virtual void addFile(const std::string& name) = 0;
  virtual void addReadOnlyFile(const std::string& name) = 0;
  virtual void addFolder(const std::string& name) = 0;
  virtual void addReadOnlyFolder(const std::string& name) = 0;
  virtual void addUnreadableFolder(const std::string& name) = 0;
  virtual void addSocket(const std::string& name) = 0;
  virtual void addLink(const std::string& name, const std::string& target) = 0;

  // Some program, this one perhaps, holds the file until the end of the test.
  virtual void addFileInUse(const std::string& name) = 0;

  // The name that it gets, because hidden may be a matter of the name.
  virtual std::string addHiddenFile(const std::string& name) = 0;
  virtual std::string addHiddenFolder(const std::string& name) = 0;

  // Another volume, or the same one again, mounted at that name.
  virtual void mountVolume(const std::string& name) = 0;
  virtual void mountAgain(const std::string& folder, const std::string& name) = 0;

  // A chain of folders, each called "d" with a file "f" in it, longer than any path may be.
  virtual void addDeepFolders(int levels) = 0;

  // As others would do it while the tree is at work.
  virtual void vanish(const std::string& name) = 0;
  virtual void rename(const std::string& from, const std::string& to) = 0;

  virtual bool has(const std::string& name) const = 0;

  // Why a promise cannot be asked for here; empty where it can.
  virtual std::string whyNoMounts() const { return {}; }
  virtual std::string whyNoRefusals() const { return {}; }
  virtual std::string whyNoSockets() const { return {}; }
  virtual std::string whyNotSoDeep() const { return {}; }
  virtual std::string whyVanishedLooksEmpty() const { return {}; }

  // Why a link or a folder that was moved is not itself here but what its path leads to; then it
  // stays, and so does what it leads to. Empty where open folders and links are what they are.
  virtual std::string whyPathsDecide() const { return {}; }
};

using MakeFolderTreeBed = std::unique_ptr<FolderTreeBed> (*)();

class FolderTreeContract : public testing::TestWithParam<MakeFolderTreeBed> {
 protected:
  std::unique_ptr<platform::OpenFolder> openRoot() { return bed->tree().openRoot(bed->root()); }

  std::unique_ptr<FolderTreeBed> bed = GetParam()();
};

// Removes everything that can be removed, as an erasure does: subfolders first.
void eraseBelow(platform::OpenFolder& folder);

}  // namespace zelvane::test
