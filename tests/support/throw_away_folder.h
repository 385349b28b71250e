// A folder that a test may fill and break, gone with everything in it at the end of the test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zelvane::test {

// Texts are UTF-8.
class ThrowAwayFolder {
 public:
  ThrowAwayFolder();
  ThrowAwayFolder(const ThrowAwayFolder&) = delete;
  ThrowAwayFolder& operator=(const ThrowAwayFolder&) = delete;
  ~ThrowAwayFolder();

  const std::filesystem::path& path() const { return path_; }

  // The path of `name` below it, with the desktop's separators.
  std::string operator/(std::string_view name) const;

  // Writes a file below it, with the folders above it.
  std::string write(std::string_view name, std::string_view content = "content") const;

  // A file's whole content.
  std::string read(std::string_view name) const;

  // Is there anything of that name, a dangling link included?
  bool has(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace zelvane::test
