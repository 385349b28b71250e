// Memory in another program, for the messages that take a pointer.
#pragma once

#include <stdexcept>

#include <windows.h>

namespace zelvane::test {

// Room for one value.
template <typename Value>
class RemoteMemory {
 public:
  // Throws where that program gives none. The handle is borrowed.
  explicit RemoteMemory(HANDLE process)
      : process_(process),
        place_(VirtualAllocEx(process, nullptr, sizeof(Value), MEM_RESERVE | MEM_COMMIT,
                              PAGE_READWRITE)) {
    require(place_ != nullptr);
  }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() { VirtualFreeEx(process_, place_, 0, MEM_RELEASE); }

  // Where it is, as that program sees it.
  LPARAM place() const { return reinterpret_cast<LPARAM>(place_); }

  void write(const Value& value) const {
    require(WriteProcessMemory(process_, place_, &value, sizeof(Value), nullptr) != 0);
  }
  Value read() const {
    Value value{};
    require(ReadProcessMemory(process_, place_, &value, sizeof(Value), nullptr) != 0);
    return value;
  }

 private:
  static void require(bool done) {
    if (!done) throw std::runtime_error("the other program's memory is out of reach");
  }

  HANDLE process_;
  void* place_;
};

}  // namespace zelvane::test
