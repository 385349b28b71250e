// The user's folders as the Windows shell knows them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include "platform/special_folders.h"

namespace zelvane::platform {

// What the system says, which a test may say in its stead. No path where it has none to give.
struct SystemFolders {
  std::function<std::optional<std::string>(SpecialFolder)> special;
  std::function<std::optional<std::string>()> temporary;

  // The user's home, and the folder of the system itself: what is or holds one of these is never
  // given out. Where one of them is not known, nothing is.
  std::vector<std::optional<std::string>> kept;
};

// What the system does say. `owner` gives the window above any question that the shell might ask
// (a disk on the net that wants a password); it may give none.
SystemFolders systemFolders(std::function<HWND()> owner);

// The temporary folder is nothing where the environment names no usable one: the system then gives
// out the home, or its own folder.
class WindowsSpecialFolders : public SpecialFolders {
 public:
  explicit WindowsSpecialFolders(SystemFolders folders);

  std::optional<std::string> path(SpecialFolder folder) const override;
  std::optional<std::string> temporaryPath() const override;

 private:
  bool isUsable(const std::string& path) const;

  SystemFolders folders_;
};

}  // namespace zelvane::platform
