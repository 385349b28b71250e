// Where the desktop keeps its user's documents, traces and temporary files.
#pragma once

#include <optional>
#include <string>

#include "platform/port.h"

namespace zelvane::platform {

// The numbers are the shell's own identifiers for these folders.
enum class SpecialFolder {
  personal = 5,        // the user's documents
  favorites = 6,       //
  recent = 8,          // recently used documents
  internetCache = 32,  //
  cookies = 33,        //
  history = 34,        //
};

class SpecialFolders : public Port {
 public:
  // The folder's path without a closing separator, or nothing where this desktop has no such
  // folder. Nothing is created: a folder that is not there is no folder. A folder that is, or
  // holds, the user's home is never returned, whatever the desktop's settings say.
  //
  // For a folder that is put together from several places (see shared/live_folders.h) the text
  // names those places; `FolderTree::openRoot` takes it like any path.
  virtual std::optional<std::string> path(SpecialFolder folder) const = 0;

  // The folder for temporary files with one closing separator, or nothing.
  virtual std::optional<std::string> temporaryPath() const = 0;
};

}  // namespace zelvane::platform
