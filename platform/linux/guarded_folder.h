// A folder held by its descriptor, from which nothing that lies outside it can be reached.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include <sys/types.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/file_identity.h"
#include "platform/linux/folder_entries.h"

namespace zelvane::platform {

// The way down goes by single names from descriptor to descriptor. No link is followed and no mount
// point is entered, bind mounts of the same volume included, whatever others do to the paths
// meanwhile. "With force" means: where a folder of the user's own lacks write or search permission,
// its owner gets it for as long as this object lives.
//
// A descriptor for each level would not do for a tree of 2,000 levels. Only the root and the
// deepest folders keep theirs:
//
//     root - . - . - . - . - . - . - folder - folder - folder
//      1      closed for now          2        3    ...  64
//
// When a folder is left and the one above it is closed, that one is opened again through "..", and
// used only if device and inode say that it is the same one. If it is not, because somebody moved a
// part of the tree away, the folders above it are lost to this walk: using them throws.
//
// As with the folder tree's, a folder is opened and destroyed like a stack's element.
class GuardedFolder {
 public:
  struct Options {
    std::size_t mostDescriptors = 64;  // 3 or more
    bool askKernel = true;  // for the checks on the way down; without, they are made here
  };

  // Opens a root. Closing separators do not matter; a link is refused.
  static std::unique_ptr<GuardedFolder> openRoot(const std::string& path, Options options);

  // Takes a root that was opened for reading by other means.
  GuardedFolder(Descriptor root, Options options);
  GuardedFolder(const GuardedFolder&) = delete;
  GuardedFolder& operator=(const GuardedFolder&) = delete;
  ~GuardedFolder();

  // Everything in it; see folder_entries.h. `use` must not use this walk.
  void read(const FolderReader::Use& use);

  // The kind of file system, as statfs names it; the same in the whole walk.
  std::int64_t fileSystem() const;

  // What the folder itself is.
  EntryFacts facts() const;

  // What an entry is; nothing where there is none of that name. With force.
  std::optional<EntryFacts> facts(const std::string& name);

  std::unique_ptr<GuardedFolder> openSubfolder(const std::string& name);

  // With force. What is gone already counts as removed. A folder is removed when it is empty.
  void removeFile(const std::string& name);
  void removeFolder(const std::string& name);

 private:
  // What the folders of one walk have in common; the root owns it.
  struct Walk {
    Options options;
    std::deque<GuardedFolder*> open;     // those below the root that have a descriptor
    std::optional<std::uint64_t> mount;  // of the whole walk, where it is checked here
    FolderReader reader;
  };

  GuardedFolder(Descriptor folder, GuardedFolder& parent);

  int descriptor() const;
  Descriptor openChecked(const std::string& name);
  Descriptor openComparingMounts(const std::string& name);
  void closeForNow();
  void openAgainThrough(int subfolder);
  void remove(const std::string& name, int flags);
  bool liftPermissions();
  void restorePermissions();

  std::unique_ptr<Walk> ownedWalk_;
  Walk* walk_;
  GuardedFolder* parent_ = nullptr;
  GuardedFolder* child_ = nullptr;
  Descriptor folder_;
  FileIdentity identity_;
  std::optional<mode_t> modeBefore_;  // while its permissions are lifted
};

}  // namespace zelvane::platform
