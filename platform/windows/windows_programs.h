// The programs that Windows opens files with.
#pragma once

#include <functional>

#include <windows.h>

#include "platform/programs.h"

namespace zelvane::platform {

// A program is named by the path of what the shell starts. The argument stands between quotes on
// its command line, with nothing in it changed: a quote inside ends the argument for most programs.
class WindowsPrograms : public Programs {
 public:
  // `owner` gives the window to which the shell's own questions belong; it may give none.
  explicit WindowsPrograms(std::function<HWND()> owner);

  std::optional<std::string> programFor(const std::string& file) const override;
  bool executablesHaveSuffix() const override { return true; }
  bool start(const std::string& program, const std::string& argument) override;

 private:
  std::function<HWND()> owner_;
};

}  // namespace zelvane::platform
