// The recycle bin of every drive, emptied by the Windows shell.
#pragma once

#include <functional>

#include <windows.h>

#include "platform/recycle_bin.h"

namespace zelvane::platform {

// The shell lets nobody in while it is at work, so events are delivered before and after it alone.
// Its progress is shown, and its sound is heard.
class WindowsRecycleBin : public RecycleBin {
 public:
  // `owner` gives the window above the shell's progress; it may give none.
  explicit WindowsRecycleBin(std::function<HWND()> owner);

  std::uint64_t empty(EventPump& pump) override;

 private:
  std::function<HWND()> owner_;
};

}  // namespace zelvane::platform
