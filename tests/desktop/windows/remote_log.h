// The log in the window of another program: its lines, with their colours.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <windows.h>

namespace zelvane::test {

struct LogLine {
  std::string text;
  std::string colour;  // "blue", "green", "black", or its digits

  bool operator==(const LogLine&) const = default;
};

void PrintTo(const LogLine& line, std::ostream* out);

// The lines that have any text. `process` is the program whose window it is. What the user has
// selected there is not selected afterwards.
std::vector<LogLine> readLog(HANDLE process, HWND log);

// Is its end in sight?
bool logShowsItsEnd(HWND log);

}  // namespace zelvane::test
