// A registry key of the user's that a test may fill and break, gone with everything below it at the
// end of the test.
#pragma once

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <windows.h>

#include "platform/windows/registry_key.h"
#include "platform/windows/wide_text.h"

namespace zelvane::test {

class ThrowAwayKey {
 public:
  ThrowAwayKey() {
    std::random_device random;
    path_ = "Software\\ZelvaneTest-" + std::to_string(random()) + std::to_string(random());
  }
  ThrowAwayKey(const ThrowAwayKey&) = delete;
  ThrowAwayKey& operator=(const ThrowAwayKey&) = delete;
  ~ThrowAwayKey() {
    for (const auto& refused : refused_) protect(refused.get(), nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, platform::wideText(path_).c_str());
  }

  // Below HKEY_CURRENT_USER; it does not exist yet.
  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "\\" + name; }

  // Opens a key below it, whether it is there or not.
  platform::RegistryKey key(const std::string& name) const {
    return platform::createKey(HKEY_CURRENT_USER, platform::wideText(*this / name)).key;
  }
  bool has(const std::string& name) const {
    return platform::openKey(HKEY_CURRENT_USER, platform::wideText(*this / name), KEY_READ)
               .status != ERROR_FILE_NOT_FOUND;
  }

  // Whoever opens that key from now on is refused, whatever the purpose.
  void refuse(const std::string& name) {
    refused_.push_back(key(name));
    ACL none{};
    InitializeAcl(&none, sizeof(none), ACL_REVISION);
    if (protect(refused_.back().get(), &none) != ERROR_SUCCESS) {
      throw std::runtime_error("the rights of a key stay as they were");
    }
  }

 private:
  // Nobody has any right where a list of rights is empty, and everyone has all where there is none.
  static LSTATUS protect(HKEY key, ACL* rights) {
    SECURITY_DESCRIPTOR rule{};
    InitializeSecurityDescriptor(&rule, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&rule, TRUE, rights, FALSE);
    return RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &rule);
  }

  std::string path_;
  std::vector<platform::RegistryKey> refused_;
};

}  // namespace zelvane::test
