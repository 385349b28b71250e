#include "tests/support/throw_away_folder.h"

#include <fstream>
#include <iterator>
#include <random>

#include "tests/support/remove_tree.h"

namespace zelvane::test {

namespace fs = std::filesystem;

namespace {

// Through UTF-8, whatever the language of the system writes texts in.
fs::path asPath(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string asText(fs::path path) {
  const std::u8string text = path.make_preferred().u8string();
  return {text.begin(), text.end()};
}

}  // namespace

ThrowAwayFolder::ThrowAwayFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("zelvane-test-" + std::to_string(random()));
  } while (!fs::create_directory(path_));
  path_ = fs::canonical(path_);
}

ThrowAwayFolder::~ThrowAwayFolder() { removeTree(path_); }

std::string ThrowAwayFolder::operator/(std::string_view name) const {
  return asText(path_ / asPath(name));
}

std::string ThrowAwayFolder::write(std::string_view name, std::string_view content) const {
  const fs::path file = path_ / asPath(name);
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
  return asText(file);
}

std::string ThrowAwayFolder::read(std::string_view name) const {
  std::ifstream file(path_ / asPath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool ThrowAwayFolder::has(std::string_view name) const {
  return fs::symlink_status(path_ / asPath(name)).type() != fs::file_type::not_found;
}

}  // namespace zelvane::test
