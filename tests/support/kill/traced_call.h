// A disk call on which a traced thread stands still.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zelvane::test {

// What the thread, stopped before a disk call, is about to change: the call's name and the paths of
// what it concerns. Nothing where that is no regular file, folder or link of a disk. Throws
// std::runtime_error for a call of another machine's numbering.
struct TracedCall {
  std::string name;
  std::vector<std::string> paths;  // none for a call that concerns every file

  static std::optional<TracedCall> of(pid_t thread);

  bool concerns(const std::string& folder) const;
  std::string text() const;
};

}  // namespace zelvane::test
