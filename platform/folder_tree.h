// What an erasure may see and do below one folder, and nothing outside it.
#pragma once

#include <memory>
#include <string>

#include "platform/name_list.h"
#include "platform/port.h"

namespace zelvane::platform {

class EventPump;

struct FolderListing {
  // Names, in the order of the desktop. Folders, hidden ones too, and mount points, which cannot be
  // opened; a link to a folder is not among them.
  NameList subfolders;
  // Names of the ordinary files: not hidden, not a socket, pipe or device. A link is an ordinary
  // file, whatever it leads to.
  NameList files;
};

// One open folder. It stays the same folder whatever happens to its path meanwhile: a folder that
// is moved away or swapped for a link is not followed. Names are single names, never paths; "." and
// ".." are refused. A name need not be valid UTF-8.
//
// Folders are opened and destroyed like a stack: while a subfolder is open, only it is used.
class OpenFolder {
 public:
  OpenFolder() = default;
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;
  virtual ~OpenFolder() = default;

  // Both lists come from one pass; what appears in the folder later is not in them. A folder may
  // hold a million files, so waiting events are delivered through `pump` between the pieces in
  // which it is read. Throws when the folder has vanished or cannot be read.
  virtual FolderListing list(EventPump& pump) = 0;

  // Throws when `name` is no folder (a link is none), is a mount point, or cannot be opened.
  // The parent outlives the subfolder.
  virtual std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) = 0;

  // Deletes a file or a link with force: a read-only file goes too, also from a folder of the
  // user's own that has no write permission. Throws when the file is in use, which is any file that
  // a process of this user holds open, as far as the desktop lets one user see that, or when the
  // desktop refuses. A file that is gone already
  // counts as deleted. Never deletes a folder.
  virtual void removeFile(const std::string& name) = 0;

  // Deletes an empty folder, with the same force. One that is not empty stays, and this throws. One
  // that is gone already counts as deleted.
  virtual void removeFolder(const std::string& name) = 0;
};

class FolderTree : public Port {
 public:
  // Opens a folder as the root of one erasure; which files are in use is looked up now, once for
  // the whole erasure. A closing separator (or several) does not matter. Throws when it is no
  // folder; a link is none, also here. A mount point is one, here alone.
  virtual std::unique_ptr<OpenFolder> openRoot(const std::string& path) = 0;
};

}  // namespace zelvane::platform
