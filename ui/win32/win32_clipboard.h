// The desktop's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace zelvane::win32 {

class Win32Clipboard : public platform::Clipboard {
 public:
  // One that another program keeps open is tried again for a moment, then permissionDenied.
  void clear() override;
};

}  // namespace zelvane::win32
