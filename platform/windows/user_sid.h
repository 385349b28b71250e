// Who owns things, as Windows writes it.
#pragma once

#include <string>

#include <windows.h>

namespace zelvane::platform {

// "S-1-5-21-...". Throws where the system does not tell.
std::wstring sidText(PSID sid);
std::wstring userOfThisProcess();

// Whether the user of this process owns what is open (for READ_CONTROL at least), or all
// administrators together: theirs is what a user makes with an administrator's rights.
bool isOwn(HANDLE opened);

}  // namespace zelvane::platform
