// What a folder that is open holds, and what one of its entries is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

#include "platform/linux/file_identity.h"

namespace zelvane::platform {

enum class EntryKind { folder, file, link, other };

struct Entry {
  ino_t inode = 0;
  std::string_view name;  // as stored, any bytes, with a zero byte behind them
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

// Reads folders one after the other, into memory that it keeps for the next one.
class FolderReader {
 public:
  // All entries but "." and "..", in pieces of some ten thousand, so that a folder of a million
  // entries takes neither much memory nor long at a stretch. `use` is called for each piece and
  // must not call this reader. A piece is sorted by inode, the order in which a disk deletes
  // fastest. Throws when the folder cannot be read or has been deleted meanwhile.
  using Use = std::function<void(std::span<const Entry> piece)>;
  void read(int folder, const Use& use);

 private:
  std::size_t fill(int folder, bool& ended);
  void takeEntries(int folder, std::size_t filled);

  std::vector<char> buffer_;
  std::vector<Entry> entries_;
};

// The entry itself, never what it leads to, and without waking up an automatic mount. Nothing, with
// `errno` set, where it cannot be asked.
std::optional<EntryFacts> factsOf(int folder, const std::string& name);

// The same for an open file or folder.
std::optional<EntryFacts> factsOf(int descriptor);

}  // namespace zelvane::platform
