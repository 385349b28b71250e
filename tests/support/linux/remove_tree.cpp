#include "tests/support/remove_tree.h"

#include <system_error>

namespace zelvane::test {

namespace fs = std::filesystem;

void removeTree(const fs::path& folder) {
  std::error_code ignored;
  for (const auto& entry : fs::recursive_directory_iterator(
           folder, fs::directory_options::skip_permission_denied, ignored)) {
    if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
      fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
  }
  fs::remove_all(folder, ignored);
}

}  // namespace zelvane::test
