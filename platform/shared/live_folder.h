// A folder that is put together from what other programs keep, for the one erasure to walk through.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/folder_tree.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// Something erasable that lies in a file of another program's, shown as a file of its own.
class LiveStore {
 public:
  LiveStore() = default;
  LiveStore(const LiveStore&) = delete;
  LiveStore& operator=(const LiveStore&) = delete;
  virtual ~LiveStore() = default;

  // Asked at each listing: a store with nothing left is not listed.
  virtual bool holdsAnything() const = 0;

  // Edits the owner's file so that nothing of this store is left in it, and nothing else changes.
  // Throws when the file is in use or refuses; then it is as it was.
  virtual void erase() = 0;
};

// Names in it are made different from each other, and single names, by small changes where needed.
class LiveFolder {
 public:
  void addStore(const std::string& name, std::unique_ptr<LiveStore> store);

  // A folder of stores, such as one profile of a browser. Removing it does nothing and succeeds,
  // because its owner would lose more than its traces.
  LiveFolder& addSubfolder(const std::string& name);

  // A folder on the disk, whose content is erased as anywhere. It survives its own removal, too.
  void addRealFolder(const std::string& name, const std::string& path);

  // The same for one that is opened in another way, such as one of whose content only a part is
  // shown.
  using Opener = std::function<std::unique_ptr<OpenFolder>(FolderTree& tree)>;
  void addFolder(const std::string& name, Opener open);

  bool isEmpty() const { return entries_.empty(); }

  // The folder as the erasure sees it. Real folders are opened in `tree`. All three outlive it.
  std::unique_ptr<OpenFolder> open(FolderTree& tree);

 private:
  friend class LiveOpenFolder;

  struct Entry {
    std::string name;
    std::variant<std::unique_ptr<LiveStore>, std::unique_ptr<LiveFolder>, Opener> what;
  };

  std::string freeName(std::string name) const;
  Entry* find(const std::string& name);

  std::vector<Entry> entries_;
};

// What one program or desktop contributes to a special folder.
struct LiveFinding {
  std::vector<std::string> places;  // the real paths of what was found, as the user is told
  LiveFolder folder;
};

class LiveSource {
 public:
  LiveSource() = default;
  LiveSource(const LiveSource&) = delete;
  LiveSource& operator=(const LiveSource&) = delete;
  virtual ~LiveSource() = default;

  // Adds what is there at this moment. Nothing is there: nothing is added.
  virtual void find(SpecialFolder folder, LiveFinding& finding) const = 0;
};

}  // namespace zelvane::platform
