// Folders that only their user can enter, for files that are nobody else's business.
#pragma once

#include <string>

#include "platform/linux/descriptor.h"

namespace zelvane::platform {

// Opens the folder `path`. Its last name is Zelvane's own: it is refused with accessError where it
// is a link or no folder, with permissionDenied where it belongs to another user, and whatever
// others may do in it is taken from them. What stands above it is the user's affair; links there
// are followed. Throws pathNotFound where it does not exist.
Descriptor openPrivateFolder(const std::string& path);

// The same, but makes it, and those above it, where they are missing (0700 all of them).
Descriptor makePrivateFolder(const std::string& path);

// Makes the folder, and those above it, where they are missing (0700 all of them).
void makeMissingFolders(const std::string& path);

}  // namespace zelvane::platform
