// The project's own text files, read into memory for the rules to judge.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zelvane::architecture {

struct SourceFile {
  std::string path;  // from the project's root, parted by "/"
  std::string text;
};

// A place where a rule is broken, and which.
struct Violation {
  std::string path;
  int line;  // from 1; 0 when it is the whole file
  std::string rule;

  bool operator==(const Violation&) const = default;
};

// All text files below `root`, in the order of their paths. Left out: what a build or a tool makes
// (`build`, `__pycache__`, `.git` and other hidden folders but `.ci`), and what is no text.
std::vector<SourceFile> readTree(const std::filesystem::path& root);

// What a failing test shows: one violation a line, "path:line: rule".
std::string list(const std::vector<Violation>& violations);

}  // namespace zelvane::architecture
