// Boxes that ask or tell the user something and wait for the answer.
#pragma once

#include <optional>
#include <string>

#include "platform/port.h"

namespace zelvane::platform {

enum class MessageIcon { none, information, exclamation, critical };

struct MessageBox {
  std::string text;  // plain text, shown as it is; never read as markup
  std::string title;
  MessageIcon icon = MessageIcon::none;
};

struct FileQuestion {
  std::string title;          // empty: the desktop's own
  std::string initialFolder;  // empty: the desktop's own
  std::string filter;         // "Wav files |*.wav": description, bar, pattern; pairs joined by bars
};

// While a box is open the window's timers stand still; the rest of the window cannot be used.
class Dialogs : public Port {
 public:
  // Shows a box with one OK button and returns when it is closed, however that happens.
  virtual void show(const MessageBox& box) = 0;

  // The path that the user chose or typed, which need not exist and gets no extension added;
  // nothing when the user cancelled.
  virtual std::optional<std::string> chooseFile(const FileQuestion& question) = 0;

  // The folder that the user picked; nothing when the user cancelled.
  virtual std::optional<std::string> chooseFolder(const std::string& prompt) = 0;
};

}  // namespace zelvane::platform
