// What a file dialog remembers between two times that it is shown.
#pragma once

#include <string>

#include "core/controls/control.h"

namespace zelvane::controls {

// The dialogs port shows it; this holds its settings and its answer.
class FileDialog : public Control {
 public:
  using Control::Control;

  std::string fileName;
  std::string title;
  std::string initialFolder;
  std::string filter;  // "Wav files |*.wav"
};

}  // namespace zelvane::controls
