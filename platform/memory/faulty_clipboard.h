// A clipboard that fails when it is told to.
#pragma once

#include "platform/clipboard.h"
#include "platform/memory/faults.h"

namespace zelvane::platform {

class FaultyClipboard : public Clipboard {
 public:
  FaultyClipboard(Clipboard& clipboard, Faults& faults) : clipboard_(clipboard), faults_(faults) {}

  void clear() override {
    faults_.throwIfItFails(ErrorNumber::permissionDenied, "Clipboard::clear", "");
    clipboard_.clear();
  }

 private:
  Clipboard& clipboard_;
  Faults& faults_;
};

}  // namespace zelvane::platform
