// A clipboard with one text in it.
#pragma once

#include <string>

#include "platform/clipboard.h"

namespace zelvane::platform {

class MemoryClipboard : public Clipboard {
 public:
  void clear() override {
    content.clear();
    ++clears_;
  }

  // What the user copied; empty at first.
  std::string content;

  // How often it was emptied.
  int clears() const { return clears_; }

 private:
  int clears_ = 0;
};

}  // namespace zelvane::platform
