// The desktop's clipboard, and the selection that the middle button pastes.
#pragma once

#include "platform/clipboard.h"

namespace zelvane::qt {

class QtClipboard : public platform::Clipboard {
 public:
  void clear() override;
};

}  // namespace zelvane::qt
