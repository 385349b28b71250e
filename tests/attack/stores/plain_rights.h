// Root without root's power over the permissions of files.
#pragma once

#include <array>

#include <linux/capability.h>

namespace zelvane::test {

// While it lives, this process has no right that its user's files do not give it.
class PlainRights {
 public:
  PlainRights();
  PlainRights(const PlainRights&) = delete;
  PlainRights& operator=(const PlainRights&) = delete;
  ~PlainRights();

 private:
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> before_{};
};

}  // namespace zelvane::test
