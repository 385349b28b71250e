// A value of the registry of which the ledger knows.
#pragma once

#include <string>

#include "platform/shared/ledger.h"
#include "platform/shared/live_registry.h"

namespace zelvane::platform {

// Below the current user: noted before it is set, struck out when it was deleted. `ledger` is
// borrowed.
LiveRegistry::LiveValue notedValue(Ledger& ledger, const std::string& path,
                                   const std::string& name);

}  // namespace zelvane::platform
