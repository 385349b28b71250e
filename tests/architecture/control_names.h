// The name of a control is spelt once, where its page declares it. Who needs the control uses the
// member; a second spelling could differ from the first, and only a user would notice.
#pragma once

#include <vector>

#include "tests/architecture/source_tree.h"

namespace zelvane::architecture {

// The second and every later string literal in product code that is the name of the same control. A
// control's name begins with the three letters of its kind ("cmdApply", "chkWebAddress").
std::vector<Violation> controlNamesSpeltAgain(const std::vector<SourceFile>& tree);

}  // namespace zelvane::architecture
