// Words that do not belong into the tree: promises to do something later, mentions of papers that a
// reader of the tree does not have, and places of the machine that it was written on.
#pragma once

#include <vector>

#include "tests/architecture/source_tree.h"

namespace zelvane::architecture {

// In any file: code, tests, scripts, documents.
std::vector<Violation> forbiddenWords(const SourceFile& file);

}  // namespace zelvane::architecture
