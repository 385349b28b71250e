// Files as a user leaves them in a year, all of them made up.
#pragma once

#include <string>
#include <vector>

#include "platform/windows/handle.h"
#include "tests/desktop/windows/throw_away_world.h"

namespace zelvane::test {

struct SampleFiles {
  explicit SampleFiles(const ThrowAwayWorld& world);

  // What a cleaning of everything erases, and what it leaves. Paths.
  std::vector<std::string> traces;
  std::vector<std::string> kept;

 private:
  void writeDocuments(const ThrowAwayWorld& world);
  void writeOthers(const ThrowAwayWorld& world);
  void holdOpen(const std::string& path);

  std::vector<platform::Handle> held_;
};

// Of these, what is there.
std::vector<std::string> existing(const std::vector<std::string>& paths);

}  // namespace zelvane::test
