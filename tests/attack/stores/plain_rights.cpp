#include "tests/attack/stores/plain_rights.h"

#include <stdexcept>

#include <sys/syscall.h>
#include <unistd.h>

namespace zelvane::test {

PlainRights::PlainRights() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  const bool asked = syscall(SYS_capget, &header, before_.data()) == 0;
  auto without = before_;
  for (auto& set : without) set.effective = 0;
  if (!asked || syscall(SYS_capset, &header, without.data()) != 0) {
    throw std::runtime_error("privileges stay");
  }
}

PlainRights::~PlainRights() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  syscall(SYS_capset, &header, before_.data());
}

}  // namespace zelvane::test
