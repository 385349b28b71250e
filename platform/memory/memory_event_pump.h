// An event pump in which nothing happens but what a test queued.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include "platform/event_pump.h"

namespace zelvane::platform {

class MemoryEventPump : public EventPump {
 public:
  void doEvents() override {
    ++calls_;
    // Each is taken off first: an action may pump events itself, queue more, or throw.
    while (!actions_.empty() && actions_.begin()->first <= calls_) {
      actions_.extract(actions_.begin()).mapped()();
    }
  }

  // Lets `action` run inside the next call that begins, and so after those queued before it.
  void post(std::function<void()> action) { postIn(1, std::move(action)); }

  // The same inside the n-th call from now: 1 is the next.
  void postIn(int n, std::function<void()> action) {
    actions_.emplace(calls_ + n, std::move(action));
  }

  // How often events were let through.
  int calls() const { return calls_; }

 private:
  std::multimap<int, std::function<void()>> actions_;  // by the number of the call
  int calls_ = 0;
};

}  // namespace zelvane::platform
