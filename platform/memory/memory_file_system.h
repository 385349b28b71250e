// A small tree of folders and files that tests build and look at.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

struct MemoryFileTraits {
  bool hidden = false;
  bool readOnly = false;  // which force overcomes
  bool inUse = false;     // held open by some program: nobody deletes it
};

struct MemoryFolderTraits {
  bool hidden = false;
  bool readOnly = false;    // of the user's own, without write permission: force overcomes it
  bool foreign = false;     // somebody else's: nothing in it can be deleted
  bool unreadable = false;  // cannot be opened
  bool unlistable = false;  // can be opened, but listing it fails
  bool mountPoint = false;  // where another volume begins
};

struct MemoryNode {
  enum class Kind { folder, file, link, socket };

  Kind kind = Kind::folder;
  std::string name;
  std::string content;  // of a link: the path where it leads
  MemoryFileTraits file;
  MemoryFolderTraits folder;
  MemoryNode* parent = nullptr;       // none: the root, or deleted
  std::vector<MemoryNode*> children;  // in the order of their making
};

// Paths are absolute and part names by "/":
//
//     fileSystem.addFile("/home/user/Documents/letter.txt", "Dear", {.readOnly = true});
//     fileSystem.addFolder("/home/user/Documents/closed", {.unreadable = true});
//
// Folders above a new entry are made where they are missing. Adding what is there already replaces
// its content or traits.
class MemoryFileSystem {
 public:
  MemoryFileSystem();

  void addFolder(std::string_view path, MemoryFolderTraits traits = {});
  void addFile(std::string_view path, std::string_view content = "content",
               MemoryFileTraits traits = {});
  void addLink(std::string_view path, std::string_view target);
  void addSocket(std::string_view path);

  void setInUse(std::string_view path, bool inUse);

  // As another program would, unrecorded and without asking for traits.
  void vanish(std::string_view path);
  void rename(std::string_view from, std::string_view to);

  // Is there anything of that name? A link counts itself.
  bool has(std::string_view path) const;

  // The content of a file; nothing where there is none.
  std::optional<std::string> content(std::string_view path) const;

  // The paths of the files and folders that went through a port, in their order.
  const std::vector<std::string>& deleted() const { return deleted_; }
  void forgetDeleted() { deleted_.clear(); }

  // For the ports on top of this tree. Closing separators do not matter to a path. Links on the way
  // are followed; the last one only by `findTarget`.
  MemoryNode* find(std::string_view path) const;
  MemoryNode* findTarget(std::string_view path) const;
  MemoryNode* child(const MemoryNode& folder, std::string_view name) const;
  MemoryNode& add(MemoryNode& folder, std::string_view name, MemoryNode::Kind kind);
  void remove(MemoryNode& node);
  bool contains(const MemoryNode& node) const;  // false once it is deleted
  std::vector<const MemoryNode*> inUse() const;

 private:
  MemoryNode* walk(std::string_view path, bool followLast, int linksLeft) const;
  MemoryNode& makeFolders(std::string_view path);
  MemoryNode& make(std::string_view path, MemoryNode::Kind kind);
  void detach(MemoryNode& node);

  // Nodes stay for good, so that a folder which is open while it is deleted is still an object.
  std::vector<std::unique_ptr<MemoryNode>> nodes_;
  MemoryNode* root_;
  std::vector<std::string> deleted_;
};

}  // namespace zelvane::platform
