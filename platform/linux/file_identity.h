// Which file it is, told apart from all others whatever it is called.
#pragma once

#include <cstddef>

#include <sys/types.h>

namespace zelvane::platform {

struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;

  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;

  struct Hash {
    std::size_t operator()(const FileIdentity& file) const { return file.inode * 31 + file.device; }
  };
};

}  // namespace zelvane::platform
