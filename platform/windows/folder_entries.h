// What a folder that is open holds.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include <windows.h>

#include "platform/windows/entry_kind.h"

namespace zelvane::platform {

struct Entry {
  std::wstring_view name;
  EntryFacts facts;
};

// Reads folders one after the other, into memory that it keeps for the next one.
class FolderReader {
 public:
  // All entries but "." and "..", in the order of the file system, in pieces of some hundreds.
  // `use` is called for each piece and must not call this reader. Throws when the folder cannot be
  // read or has been deleted meanwhile.
  using Use = std::function<void(std::span<const Entry> piece)>;
  void read(HANDLE folder, const Use& use);

 private:
  bool fill(HANDLE folder, bool fromTheStart);
  void takeEntries();

  std::vector<char> buffer_;
  std::vector<Entry> entries_;
};

}  // namespace zelvane::platform
