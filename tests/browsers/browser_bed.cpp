#include "tests/browsers/browser_bed.h"

#include <fstream>
#include <set>

namespace zelvane::test {

std::string BrowserBed::read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string BrowserBed::filesWith(std::string_view text) const {
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(home)) {
    const std::string path = entry.path().generic_string();
    const bool isFile = entry.is_regular_file() && !entry.is_symlink();
    if (path.find(text) != std::string::npos ||
        (isFile && read(path).find(text) != std::string::npos)) {
      found.insert(path.substr(home.size() + 1));
    }
  }
  std::string names;
  for (const std::string& name : found) names += name + "\n";
  return names;
}

}  // namespace zelvane::test
