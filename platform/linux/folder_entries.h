// What a folder that is open holds, and what one of its entries is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "platform/linux/file_identity.h"

namespace zelvane::platform {

enum class EntryKind { folder, file, link, other };

struct Entry {
  ino_t inode = 0;
  std::string name;  // as stored, any bytes
  EntryKind kind = EntryKind::other;
};

struct EntryFacts {
  FileIdentity identity;
  EntryKind kind = EntryKind::other;
  std::uint64_t bytes = 0;  // its size
  std::uint64_t names = 0;  // how many names it has; the last one's removal frees it
  uid_t owner = 0;
  mode_t mode = 0;  // permission bits
};

// All entries but "." and "..", sorted by inode, the order in which a disk deletes fastest. Throws
// when the folder cannot be read or has been deleted meanwhile.
std::vector<Entry> entriesOf(int folder);

// The entry itself, never what it leads to, and without waking up an automatic mount. Nothing, with
// `errno` set, where it cannot be asked.
std::optional<EntryFacts> factsOf(int folder, const std::string& name);

// The same for an open file or folder.
std::optional<EntryFacts> factsOf(int descriptor);

}  // namespace zelvane::platform
