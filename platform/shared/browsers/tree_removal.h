// Removing a folder of ours with everything in it.
#pragma once

#include <string>

#include "platform/folder_tree.h"

namespace zelvane::platform {

// The folder of that name in `parent`, an existing one. A link in it goes, and not what it leads
// to. Throws where anything stays; the rest is gone then.
void removeWholeFolder(FolderTree& tree, const std::string& parent, const std::string& name);

}  // namespace zelvane::platform
