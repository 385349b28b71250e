// Paths as the system takes them whatever their length and their names.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {

// "C:/folder/./file." becomes "\\?\C:\folder\file.", "\\server\share\x" becomes
// "\\?\UNC\server\share\x". In that form a path may have 32,767 characters, and names that the
// system would otherwise change or take for devices ("a.", "b ", "nul") are names like others. What
// it would have done to the path is done here: separators are made alike and single, "." and ".."
// are resolved, a path that is not absolute continues the current folder. One closing separator
// stays. A path that has such a form already is left as it is.
//
// An empty path stays empty, which the system does not find. Throws fileNotFound where there is a
// zero byte inside.
std::wstring longPath(std::string_view path);

// "C:\folder" of "C:\folder\\"; but "C:\" stays, because "C:" would be the current folder there.
std::string withoutClosingSeparators(std::string_view path);

}  // namespace zelvane::platform
