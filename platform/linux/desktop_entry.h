// A program as the desktop knows it: the file that says how it is started and what it opens.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/environment.h"

namespace zelvane::platform {

struct DesktopEntry {
  std::string path;     // of the entry's own file
  std::string name;     //
  std::string icon;     // empty where it has none
  std::string command;  // "Exec", quotes and field codes included
  std::vector<std::string> types;
};

// The entry in that file; nothing where it is none of a program that can be started now: hidden,
// one whose executable is not there, or one for a terminal, of which there may be none.
std::optional<DesktopEntry> readDesktopEntry(const std::string& path,
                                             const Environment& environment);

// The words that start it with the given argument, the first one being the executable's absolute
// path. The argument takes the place of the command's field code for files or addresses, and comes
// last where there is none; whatever is in it, it does not fall into several words, nor becomes one
// of the command's own. Empty where the executable is not there.
std::vector<std::string> commandWords(const DesktopEntry& entry, const std::string& argument,
                                      const Environment& environment);

}  // namespace zelvane::platform
