// What Explorer remembers of a user's typing, beside the lists that the program names.
#pragma once

#include "platform/registry.h"

namespace zelvane::platform {

// All of them are keys of the current user's. What is not there, or refuses, is left.
class ExplorerHistory {
 public:
  explicit ExplorerHistory(Registry& registry) : registry_(registry) {}

  // When each of the typed addresses was typed, and what was typed into Explorer's address bar.
  void eraseTyped();

  // What was typed into Explorer's search box, which goes with the history of "Run".
  void eraseRun();

 private:
  Registry& registry_;
};

}  // namespace zelvane::platform
