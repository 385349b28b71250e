// Deleting what is open, so that what was looked at is what goes.
#pragma once

#include <functional>

#include <windows.h>

#include "platform/windows/handle.h"

namespace zelvane::platform {

// Opens for `deleteOpen`. `open` gets the access rights to ask for and may be called twice, because
// somebody may be allowed to delete a file and not to change its attributes.
Handle openToDelete(const std::function<Handle(DWORD access)>& open);

// Deletes what the handle was opened for, as `attributes` (its own) say also if it is read-only.
// Its name goes when the handle is closed; a folder has to be empty. The attributes are as before
// if it stays, also under other names of the same file. False, with the last error set, where the
// system refuses.
bool deleteOpen(HANDLE entry, DWORD attributes);

// Whether an open file goes when its last handle is closed, be it by a kill.
bool deleteWhenClosed(HANDLE file, bool deleted);

}  // namespace zelvane::platform
