// What every port has in common: `main` builds it, everyone else holds a reference, nobody copies
// it.
#pragma once

namespace zelvane::platform {

// A port is an abstract class that says, in the program's own words, what the program asks of a
// desktop. Silence in a port's header means: called on the user-interface thread, texts are UTF-8
// in and out, the caller keeps what it passes, nothing is retained after the call, and a failure
// is thrown as `Error`.
class Port {
 public:
  Port() = default;
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;
  virtual ~Port() = default;
};

}  // namespace zelvane::platform
