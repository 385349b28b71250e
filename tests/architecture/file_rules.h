// What a single file keeps to: its length, how a header opens, where the preprocessor may decide,
// and what product code does without. And each folder of the program has its README.
#pragma once

#include <vector>

#include "tests/architecture/source_tree.h"

namespace zelvane::architecture {

constexpr int kLongestFile = 400;  // lines

// A source or script beyond `kLongestFile` lines.
std::vector<Violation> tooLong(const SourceFile& file);

// A header opens with a comment that says what it is, followed by "#pragma once".
std::vector<Violation> headerOpening(const SourceFile& file);

// #if and its kin, which hide a decision from one of the two desktops: only the tenants and the
// shells, which differ by desktop as whole files, and their tests may have them.
std::vector<Violation> conditionalCompilation(const SourceFile& file);

// Stream classes, <regex> and shared_ptr, which no product code uses.
std::vector<Violation> unusedLanguage(const SourceFile& file);

// Folders of the program that hold C++ and no README.md.
std::vector<Violation> missingReadmes(const std::vector<SourceFile>& tree);

}  // namespace zelvane::architecture
