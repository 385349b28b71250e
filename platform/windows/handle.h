// A handle of the system's that is closed when its owner goes.
#pragma once

#include <utility>

#include <windows.h>

namespace zelvane::platform {

class Handle {
 public:
  Handle() = default;
  // Takes ownership. Null and INVALID_HANDLE_VALUE, what failed calls return, are not open.
  explicit Handle(HANDLE handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) {
      close();
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }
  ~Handle() { close(); }

  bool isOpen() const { return handle_ != nullptr; }

  // Still owned by this object; null when not open.
  HANDLE get() const { return handle_; }

  // Keeps the last error as it was, so that a failure can be reported after tidying up.
  void close() {
    if (handle_ == nullptr) return;
    const DWORD code = GetLastError();
    CloseHandle(std::exchange(handle_, nullptr));
    SetLastError(code);
  }

 private:
  HANDLE handle_ = nullptr;
};

}  // namespace zelvane::platform
