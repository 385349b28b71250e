// Message boxes and file choosers.
#pragma once

#include <windows.h>

#include "core/controls/open_boxes.h"
#include "platform/dialogs.h"

namespace zelvane::win32 {

class Win32Dialogs : public platform::Dialogs {
 public:
  // Counts its boxes in `boxes`, so that the timers stand still while one is open.
  explicit Win32Dialogs(controls::OpenBoxes& boxes) : boxes_(boxes) {}

  // From now on boxes belong to this window. Before, they stand on their own.
  void attach(HWND window) { window_ = window; }

  void show(const platform::MessageBox& box) override;
  std::optional<std::string> chooseFile(const platform::FileQuestion& question) override;
  std::optional<std::string> chooseFolder(const std::string& prompt) override;

 private:
  controls::OpenBoxes& boxes_;
  HWND window_ = nullptr;
};

}  // namespace zelvane::win32
