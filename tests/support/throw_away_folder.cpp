#include "tests/support/throw_away_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace zelvane::test {

namespace fs = std::filesystem;

ThrowAwayFolder::ThrowAwayFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("zelvane-test-" + std::to_string(random()));
  } while (!fs::create_directory(path_));
  path_ = fs::canonical(path_);
}

ThrowAwayFolder::~ThrowAwayFolder() {
  std::error_code ignored;
  for (const auto& entry : fs::recursive_directory_iterator(
           path_, fs::directory_options::skip_permission_denied, ignored)) {
    if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
      fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
  }
  fs::remove_all(path_, ignored);
}

std::string ThrowAwayFolder::write(std::string_view name, std::string_view content) const {
  const fs::path file = path_ / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
  return file.string();
}

std::string ThrowAwayFolder::read(std::string_view name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool ThrowAwayFolder::has(std::string_view name) const {
  return fs::symlink_status(path_ / name).type() != fs::file_type::not_found;
}

}  // namespace zelvane::test
