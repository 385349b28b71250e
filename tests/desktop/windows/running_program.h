// The real program, running in a throw-away world.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <windows.h>

#include "platform/windows/handle.h"
#include "tests/desktop/windows/program_window.h"
#include "tests/desktop/windows/throw_away_world.h"

namespace zelvane::test {

// Of Zelvane.exe, in the folder above that of the tests.
std::string pathOfTheProgram();

// A message box of the program.
class MessageBox {
 public:
  explicit MessageBox(HWND window) : window_(window) {}

  std::string title() const;
  std::string text() const;

  // The window before which it stands, which need not be seen.
  HWND owner() const { return GetWindow(window_, GW_OWNER); }

  // Presses its one button, and waits until the box is gone.
  void accept() const;

 private:
  HWND window_;
};

class RunningProgram {
 public:
  // Starts it; `arguments` follow its name. The world outlives this object.
  explicit RunningProgram(const ThrowAwayWorld& world, const std::string& arguments = "");
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  // Ends it by force.
  ~RunningProgram();

  // Waits for the window to be there and loaded. Throws where a message box comes in its stead, or
  // the program ends.
  ProgramWindow window() const;

  // Waits for a message box.
  MessageBox message() const;

  bool isRunning() const;
  bool hasWindow() const { return findWindow() != nullptr; }

  // Waits for the program's end.
  std::uint32_t endStatus() const;

  // Ends it as it stands, and waits for that.
  void kill() const;

 private:
  HWND findWindow() const;
  std::optional<MessageBox> findMessage() const;

  platform::Handle process_;
  DWORD id_ = 0;
};

}  // namespace zelvane::test
