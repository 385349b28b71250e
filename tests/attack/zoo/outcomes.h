// An erasure's outcome as GoogleTest shows it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {

inline void describe(testing::AssertionResult& result, const char* what,
                     const std::vector<std::string>& paths) {
  constexpr std::size_t kMostShown = 10;
  for (std::size_t shown = 0; shown < std::min(paths.size(), kMostShown); ++shown) {
    result << what << ": " << testing::PrintToString(paths[shown].substr(0, 200)) << "\n";
  }
  if (paths.size() > kMostShown) result << what << ": " << paths.size() << " in all\n";
}

inline testing::AssertionResult asItShould(const Outcome& outcome) {
  if (outcome.isAsItShould()) return testing::AssertionSuccess();
  testing::AssertionResult failure = testing::AssertionFailure() << "\n";
  describe(failure, "lost", outcome.lost);
  describe(failure, "changed", outcome.changed);
  describe(failure, "left", outcome.left);
  describe(failure, "added", outcome.added);
  return failure;
}

}  // namespace zelvane::test
