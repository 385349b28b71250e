// What a program asks of the system's libraries.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace zelvane::test {

struct Import {
  std::string library;  // as the program names it, as "KERNEL32.dll"
  std::string function;
  void** place;  // where its address stands, which every call goes through
};

// Those of a loaded module. Throws for one that is asked for by a number, which tells nobody what
// it is.
std::vector<Import> importsOf(HMODULE module);

}  // namespace zelvane::test
