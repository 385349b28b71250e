// Where the ledger is on Linux.
#pragma once

#include "platform/linux/environment.h"
#include "platform/shared/ledger.h"

namespace zelvane::platform {

// $XDG_CONFIG_HOME/zelvane/ledger.txt, a private file.
Ledger linuxLedger(const Environment& environment);

}  // namespace zelvane::platform
