// A folder's listing in a form that tests can compare.
#pragma once

#include <string>
#include <vector>

#include "platform/folder_tree.h"
#include "tests/support/no_events.h"

namespace zelvane::test {

struct Listing {
  std::vector<std::string> subfolders;
  std::vector<std::string> files;
};

inline Listing listOf(platform::OpenFolder& folder) {
  NoEvents pump;
  const platform::FolderListing listing = folder.list(pump);
  return {{listing.subfolders.begin(), listing.subfolders.end()},
          {listing.files.begin(), listing.files.end()}};
}

}  // namespace zelvane::test
