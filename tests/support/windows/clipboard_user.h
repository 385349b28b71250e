// A program that copies and pastes.
#pragma once

#include <string>

#include <windows.h>

namespace zelvane::test {

class ClipboardUser {
 public:
  ClipboardUser();
  ClipboardUser(const ClipboardUser&) = delete;
  ClipboardUser& operator=(const ClipboardUser&) = delete;
  ~ClipboardUser();

  void copy(const std::string& text) const;

  // What a paste would give; empty where there is no text.
  std::string pasted() const;

 private:
  HWND window_;  // because what is copied belongs to one
};

}  // namespace zelvane::test
