// A folder of a browser's whose content is erased, whole or in part.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder_tree.h"

namespace zelvane::platform {

// Opens it in `tree`. Its listing, and nothing below it, is held to `patterns`, names with at most
// one "*"; none of them shows all, but never the `spared` ones.
//
// Below all rules there is this guard: a folder, at any depth, that holds a browser's settings,
// bookmarks, passwords or keys is neither listed nor touched, whoever names it.
std::unique_ptr<OpenFolder> openBrowserFolder(FolderTree& tree, const std::string& path,
                                              std::vector<std::string_view> patterns,
                                              std::vector<std::string> spared = {});

// Whether a browser keeps settings, bookmarks, passwords or keys in a file of that name, in small
// letters or in capitals: on some systems these are the same file.
bool isNeverErased(std::string_view name);

}  // namespace zelvane::platform
