// A folder held by its handle, from which nothing that lies outside it can be reached.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include <windows.h>

#include "platform/windows/folder_entries.h"
#include "platform/windows/handle.h"

namespace zelvane::platform {

// The way down goes by single names from handle to handle. Whatever leads elsewhere (a link, a
// junction, a mounted volume) is opened as what it is, recognised by its handle and refused.
//
// Only the root and the deepest folders keep their handles, like this with 64 of them:
//
//     root - . - . - . - . - . - . - folder - folder - folder
//      1      closed for now          2        3    ...  64
//
// When a folder is left and the one above it is closed, that one is opened again by its number on
// the volume. Where a volume cannot do that, every folder keeps its handle. If it does not come
// back, because somebody took it away, it is lost to this walk: using it throws.
//
// Wine, which runs Windows programs on Linux, follows a Unix link whatever it is asked for, and
// deletes by path. There what was opened is used only if its path says that it is where it should
// be (`comparePaths`); links and moved folders stay.
//
// As with the folder tree's, a folder is opened and destroyed like a stack's element.
class HeldFolder {
 public:
  struct Options {
    std::size_t mostHandles = 64;  // 3 or more
    bool comparePaths = false;
  };

  // Opens a root, with any number of closing separators.
  static std::unique_ptr<HeldFolder> openRoot(const std::string& path, Options options);

  HeldFolder(const HeldFolder&) = delete;
  HeldFolder& operator=(const HeldFolder&) = delete;
  ~HeldFolder();

  // Everything in it; see folder_entries.h. `use` must not use this walk.
  void read(const FolderReader::Use& use);

  std::unique_ptr<HeldFolder> openSubfolder(const std::string& name);

  // Read-only ones too. What is gone already counts as removed. A file goes when nobody has it
  // open, a folder when it is empty.
  void removeFile(const std::string& name);
  void removeFolder(const std::string& name);

 private:
  // What the folders of one walk have in common; the root owns it.
  struct Walk {
    Options options;
    std::deque<HeldFolder*> open;  // those below the root that have a handle
    FolderReader reader;
  };

  HeldFolder(Handle root, Options options);
  HeldFolder(Handle folder, HeldFolder& parent);

  HANDLE handle() const;
  // Throws where the entry was reached through a link that the system followed by itself.
  void mustBeHere(HANDLE entry, const std::wstring& name) const;
  bool closeForNow();
  void openAgainThrough(HANDLE subfolder);
  Handle openEntry(const std::wstring& name, DWORD share) const;

  std::unique_ptr<Walk> ownedWalk_;
  Walk* walk_;
  HeldFolder* parent_ = nullptr;
  HeldFolder* child_ = nullptr;
  Handle folder_;
  std::uint64_t number_ = 0;  // told apart by it from all others of its volume
};

}  // namespace zelvane::platform
