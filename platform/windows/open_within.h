// Opening by a single name in a folder that is open, whatever its path is by now.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <windows.h>

#include "platform/windows/handle.h"

namespace zelvane::platform {

// The name for the system. Throws accessError for what is no single name: empty, "." or "..", with
// a separator, or with a colon, which would name a stream of a file. Throws pathNotFound for one
// that is longer than any text of the system's.
std::wstring singleName(std::string_view name);

// How to open: the system's own words (access rights, FILE_SHARE_..., native FILE_... options).
struct OpenHow {
  DWORD access = 0;
  DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  DWORD options = 0;
};

// Opens what has that name; a link is opened itself and never what it leads to. Not open, with the
// last error set, where that fails.
Handle openWithin(HANDLE folder, const std::wstring& name, const OpenHow& how);

// Makes a file of that name, which nothing may have yet, protected by `security`.
Handle createWithin(HANDLE folder, const std::wstring& name, const OpenHow& how,
                    SECURITY_DESCRIPTOR* security);

// Gives an open file the name in the folder, in place of any file or link that has it. False, with
// the last error set, where that fails.
bool renameWithin(HANDLE folder, const std::wstring& name, HANDLE file);

// The number by which the volume knows what is open. Throws when it cannot be told.
std::uint64_t numberOf(HANDLE entry);

// The path of what is open, on its volume: "\folder\file". Nothing where that cannot be told.
std::optional<std::wstring> pathOnVolume(HANDLE entry);

// True under Wine, which opens what a Unix link leads to instead of the link.
bool followsUnixLinks();

// Whether the paths say that what is open is the entry of that name in the folder, and not what a
// link of that name leads to.
bool isEntryOf(HANDLE folder, const std::wstring& name, HANDLE entry);

}  // namespace zelvane::platform
