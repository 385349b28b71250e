// What a run had to leave in browsers, and why.
#pragma once

#include <string>
#include <vector>

namespace zelvane::platform {

struct LeftTrace {
  std::string profile;  // "Firefox (default-release)"
  std::string reason;   // empty: the browser is open

  friend bool operator==(const LeftTrace&, const LeftTrace&) = default;
};

// Collected while a run goes on, told after it.
class LeftTraces {
 public:
  // The same is noted once.
  void add(LeftTrace left);

  // All of them, in their order; then there are none.
  std::vector<LeftTrace> take();

 private:
  std::vector<LeftTrace> left_;
};

}  // namespace zelvane::platform
