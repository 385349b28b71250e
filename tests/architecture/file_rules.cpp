#include "tests/architecture/file_rules.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

#include "tests/architecture/source_text.h"

namespace zelvane::architecture {

namespace {

bool isSourceOrScript(const SourceFile& file) {
  static constexpr auto kEndings =
      std::to_array<std::string_view>({".py", ".sh", ".js", ".cmake", "CMakeLists.txt"});
  return isCpp(file.path) || file.text.starts_with("#!") ||
         std::ranges::any_of(kEndings,
                             [&](std::string_view ending) { return file.path.ends_with(ending); });
}

bool differsByDesktop(std::string_view path) {
  static constexpr auto kFolders = std::to_array<std::string_view>(
      {"platform/linux", "platform/windows", "platform/shared", "ui", "browser", "tests", "bench"});
  return std::ranges::any_of(kFolders,
                             [&](std::string_view folder) { return isBelow(path, folder); });
}

// A comment of two words at least: "// A button." is, "// button.h" is not.
bool isSentence(std::string_view line) {
  return line.starts_with("// ") && std::ranges::count(line, ' ') > 1;
}

bool isConditional(std::string_view line) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string_view::npos || line[hash] != '#') {
    return false;
  }
  const std::size_t word = line.find_first_not_of(" \t", hash + 1);
  return word != std::string_view::npos &&
         (line.substr(word).starts_with("if") || line.substr(word).starts_with("elif"));
}

}  // namespace

std::vector<Violation> tooLong(const SourceFile& file) {
  const int length = static_cast<int>(linesOf(file.text).size());
  if (!isSourceOrScript(file) || length <= kLongestFile) {
    return {};
  }
  return {{file.path, length, "longer than " + std::to_string(kLongestFile) + " lines"}};
}

std::vector<Violation> headerOpening(const SourceFile& file) {
  if (!isHeader(file.path)) {
    return {};
  }
  std::vector<Violation> violations;
  const auto lines = linesOf(file.text);
  if (lines.empty() || !isSentence(lines.front())) {
    violations.push_back({file.path, 1, "no opening comment that says what this header is"});
  }
  const auto code = std::ranges::find_if_not(
      lines, [](std::string_view line) { return line.empty() || line.starts_with("//"); });
  if (code == lines.end() || *code != "#pragma once") {
    violations.push_back({file.path, static_cast<int>(code - lines.begin()) + 1,
                          "\"#pragma once\" is not the first line of code"});
  }
  return violations;
}

std::vector<Violation> conditionalCompilation(const SourceFile& file) {
  if (!isCpp(file.path) || differsByDesktop(file.path)) {
    return {};
  }
  std::vector<Violation> violations;
  const std::string code = codeOnly(file.text);
  int number = 0;
  for (std::string_view line : linesOf(code)) {
    ++number;
    if (isConditional(line)) {
      violations.push_back({file.path, number, "conditional compilation outside the tenants"});
    }
  }
  return violations;
}

std::vector<Violation> unusedLanguage(const SourceFile& file) {
  static constexpr auto kHeaders =
      std::to_array<std::string_view>({"fstream", "iomanip", "ios", "iostream", "istream",
                                       "ostream", "regex", "sstream", "streambuf", "syncstream"});
  static constexpr auto kWords =
      std::to_array<std::string_view>({"shared_ptr", "make_shared", "weak_ptr"});
  if (!isProduct(file.path)) {
    return {};
  }
  std::vector<Violation> violations;
  for (const Include& include : includesOf(file.text)) {
    if (!include.quoted && std::ranges::find(kHeaders, include.name) != kHeaders.end()) {
      violations.push_back({file.path, include.line, "product code does without " + include.name});
    }
  }
  const std::string code = codeOnly(file.text);
  int number = 0;
  for (std::string_view line : linesOf(code)) {
    ++number;
    for (std::string_view word : kWords) {
      if (findWord(line, word) != std::string_view::npos) {
        violations.push_back({file.path, number, "product code does without " + std::string(word)});
      }
    }
  }
  return violations;
}

std::vector<Violation> missingReadmes(const std::vector<SourceFile>& tree) {
  std::set<std::string> folders;
  for (const SourceFile& file : tree) {
    if (isProduct(file.path)) {
      folders.emplace(folderOf(file.path));
    }
  }
  std::vector<Violation> violations;
  for (const std::string& folder : folders) {
    const std::string readme = folder + "/README.md";
    if (std::ranges::find(tree, readme, &SourceFile::path) == tree.end()) {
      violations.push_back({folder, 0, "has no README.md"});
    }
  }
  return violations;
}

}  // namespace zelvane::architecture
