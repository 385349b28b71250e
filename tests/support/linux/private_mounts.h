// Mounts that nobody but the test's own process sees.
#pragma once

#include <string>
#include <vector>

namespace zelvane::test {

// Works for root and inside "unshare --user --map-root-user --mount". All mounts go with this
// object.
class PrivateMounts {
 public:
  PrivateMounts();
  PrivateMounts(const PrivateMounts&) = delete;
  PrivateMounts& operator=(const PrivateMounts&) = delete;
  ~PrivateMounts();

  // Why this process may not mount; empty where it may.
  const std::string& whyNot() const { return whyNot_; }

  // Both make the folder `place` where it is missing, and throw when they fail.
  void mountVolume(const std::string& place);  // an empty one
  void mountAgain(const std::string& folder, const std::string& place);

 private:
  void mount(const std::string& source, const std::string& place, const char* type,
             unsigned long flags);

  std::string whyNot_;
  std::vector<std::string> places_;
};

}  // namespace zelvane::test
