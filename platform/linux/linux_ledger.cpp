#include "platform/linux/linux_ledger.h"

#include "platform/linux/private_file.h"

namespace zelvane::platform {

Ledger linuxLedger(const Environment& environment) {
  return Ledger([file = PrivateFile(environment.configHome + "/zelvane", "ledger.txt")](
                    const Ledger::Change& change) mutable { file.update(change); });
}

}  // namespace zelvane::platform
