// A list of handlers that are called, in the order in which they were connected, when something
// happens to a control.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace zelvane::controls {

// Delivery holds the handlers it calls: a handler may connect others (they are called from the next
// time on), and may even destroy the event that is calling it.
template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  void connect(Handler handler) { handlers_.push_back(std::move(handler)); }

  void raise(Args... args) const {
    const auto handlers = handlers_;
    for (const Handler& handler : handlers) {
      handler(args...);
    }
  }

 private:
  std::vector<Handler> handlers_;
};

}  // namespace zelvane::controls
