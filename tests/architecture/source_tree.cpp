#include "tests/architecture/source_tree.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace zelvane::architecture {

namespace fs = std::filesystem;

namespace {

bool holdsNoSources(const fs::path& folder, const fs::path& root) {
  const std::string name = folder.filename().string();
  return folder == root / "build" || name == "__pycache__" ||
         (name.starts_with('.') && name != ".ci");
}

std::string readWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool isText(const std::string& content) { return content.find('\0') == std::string::npos; }

}  // namespace

std::vector<SourceFile> readTree(const fs::path& root) {
  std::vector<SourceFile> files;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    if (entry->is_directory() && holdsNoSources(entry->path(), root)) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file() && !entry->is_symlink()) {
      std::string content = readWhole(entry->path());
      if (isText(content)) {
        files.push_back({entry->path().lexically_relative(root).generic_string(), content});
      }
    }
  }
  std::ranges::sort(files, {}, &SourceFile::path);
  return files;
}

std::string list(const std::vector<Violation>& violations) {
  std::string text;
  for (const Violation& violation : violations) {
    text += violation.path + ":" + std::to_string(violation.line) + ": " + violation.rule + "\n";
  }
  return text;
}

}  // namespace zelvane::architecture
