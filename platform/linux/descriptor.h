// A file descriptor that is closed when its owner goes.
#pragma once

#include <utility>

#include <unistd.h>

namespace zelvane::platform {

class Descriptor {
 public:
  Descriptor() = default;
  // Takes ownership; -1, what a failed call returns, is a descriptor that is not open.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    if (this != &other) {
      close();
      number_ = std::exchange(other.number_, -1);
    }
    return *this;
  }
  ~Descriptor() { close(); }

  bool isOpen() const { return number_ >= 0; }

  // The number, still owned by this object; -1 when not open.
  int get() const { return number_; }

  // The number, from now on the caller's to close.
  [[nodiscard]] int release() { return std::exchange(number_, -1); }

  // Keeps `errno` as it was, so that a failure can be reported after tidying up.
  void close();

 private:
  int number_ = -1;
};

}  // namespace zelvane::platform
