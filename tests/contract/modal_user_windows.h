// A user who waits for a box to open and then does something with it.
#pragma once

#include <functional>

#include <windows.h>

namespace zelvane::test {

class ModalUser {
 public:
  ModalUser();
  ~ModalUser();
  ModalUser(const ModalUser&) = delete;
  ModalUser& operator=(const ModalUser&) = delete;

  // At the next box of this thread that is open and ready, once.
  void atNextDialog(std::function<void(HWND box)> deed);

 private:
  static LRESULT CALLBACK deliver(HWND window, UINT message, WPARAM word, LPARAM value);
  void look();

  HWND window_;
  std::function<void(HWND)> deed_;
};

}  // namespace zelvane::test
