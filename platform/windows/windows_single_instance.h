// A named mutex of the user's session. The system takes it away when the process ends, also when it
// is killed.
#pragma once

#include <memory>
#include <string>

#include "platform/single_instance.h"

namespace zelvane::platform {

// A user has one session, in which others may have programs too: the name holds the user's number.
// The mutex is the claim by being there; nobody waits for it.
class WindowsSingleInstance : public SingleInstance {
 public:
  explicit WindowsSingleInstance(const std::string& program = "Zelvane");

  // Held as long as this object lives.
  bool claim() override;

 private:
  struct CloseMutex {
    void operator()(void* mutex) const;
  };

  std::wstring name_;
  std::unique_ptr<void, CloseMutex> mutex_;
};

// What the mutex of a program is called for this user.
std::wstring nameForThisUser(const std::string& program);

}  // namespace zelvane::platform
