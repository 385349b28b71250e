// Who may include whom: the shells stand on the main window, it on the subsystems, they on the
// core, the core on the ports. No arrow points up or sideways.
#pragma once

#include <vector>

#include "tests/architecture/source_tree.h"

namespace zelvane::architecture {

// The includes of a file that its folder does not allow: another folder of the project, a header of
// the system or of the toolkit, a project header not written from the root. Tests, benchmarks and
// everything else that is no part of the program may include anything.
std::vector<Violation> forbiddenIncludes(const SourceFile& file);

// The folders of the program that no row of the table speaks of.
std::vector<Violation> foldersWithoutARule(const std::vector<SourceFile>& tree);

}  // namespace zelvane::architecture
