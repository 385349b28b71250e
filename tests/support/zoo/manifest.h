// Everything that a folder holds, written down so that the slightest change shows.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include <sys/types.h>

#include "platform/linux/file_identity.h"

namespace zelvane::test {

struct ManifestEntry {
  mode_t mode = 0;  // kind and permissions
  uid_t owner = 0;
  std::int64_t modified = 0;  // nanoseconds since 1970
  std::string content;        // a file's bytes, a link's target
  std::uint64_t names = 0;    // how many names it has anywhere
  platform::FileIdentity identity;

  bool isFolder() const;
  bool isFile() const;
};

// By path below the folder, as "a/b". Bytes, in no encoding.
using Manifest = std::map<std::string, ManifestEntry>;

// Enters mounted volumes, follows no link, has no limit of depth, and leaves no trace: where its
// owner may not read or search something, that is changed for the moment of the look. What another
// user keeps to himself counts as empty. Throws std::system_error. The folder has to stand still.
Manifest manifestOf(const std::string& folder);

}  // namespace zelvane::test
