// Where the ledger is on Windows.
#pragma once

#include <string>

#include "platform/shared/ledger.h"

namespace zelvane::platform {

// "ledger.txt" in `folder`, which is made at the first note; the folder above it has to be there.
// It is not the program's own folder, because the list is wanted when that has been thrown away.
Ledger windowsLedger(const std::string& folder);

}  // namespace zelvane::platform
