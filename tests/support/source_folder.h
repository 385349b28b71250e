// Where the sources are, for what tests read of them.
#pragma once

#include <cstdlib>
#include <string>

namespace zelvane::test {

// Where ./check runs the tests as another user, that user sees a copy of the sources.
inline std::string inSources(const std::string& name) {
  const char* copy = std::getenv("ZELVANE_SOURCE_DIR");
  return (copy != nullptr ? copy : std::string(SOURCES)) + "/" + name;
}

}  // namespace zelvane::test
