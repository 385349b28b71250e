// Empties a folder: everything below it goes, the folder itself stays.
#pragma once

#include <string>

namespace zelvane::platform {
class EventPump;
class FolderTree;
}  // namespace zelvane::platform

namespace zelvane::cleaner {

// Depth first: the subfolders in the order of their listing, then the folder's own files, then,
// unless it is the one that was asked for, the folder itself. Hidden files are not in the listing;
// they stay, and their folder with them, because a folder goes only when it is empty. Waiting
// events are delivered after each file.
//
// What cannot be deleted stays, and nothing is said about it. A folder that cannot be opened or
// listed ends the erasure of that folder alone.
void eraseContents(platform::FolderTree& tree, platform::EventPump& pump, const std::string& path);

}  // namespace zelvane::cleaner
