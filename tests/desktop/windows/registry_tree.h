// Keys of the user's registry as values that tests compare, keep and put back.
#pragma once

#include <compare>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include "platform/windows/registry_key.h"

namespace zelvane::test {

struct RegistryData {
  DWORD type;
  std::vector<std::byte> bytes;

  auto operator<=>(const RegistryData&) const = default;
};

// Each key from one down, by its path from there (that one's own is empty), with its values.
using RegistryTree = std::map<std::wstring, std::map<std::wstring, RegistryData>>;

// All paths are below HKEY_CURRENT_USER.

// Nothing where there is no such key. Throws where it, or one below it, cannot be read.
std::optional<RegistryTree> readKeys(const std::string& path);

// Replaces whatever is there; nothing takes the key away.
void replaceKeys(const std::string& path, const std::optional<RegistryTree>& tree);

// A text among the values; nothing where it is missing or no text.
std::optional<std::string> userText(const std::string& path, const std::string& name);

// Makes the key where it is missing.
void setUserText(const std::string& path, const std::string& name, const std::string& text);
void setUserValue(const std::string& path, const std::string& name, const RegistryData& value);

// While this lives, whoever opens the key may do with it what `rights` say, in the system's
// language for them: "D:P" is nothing, for anybody.
class KeyRights {
 public:
  KeyRights(const std::string& path, const std::string& rights);
  KeyRights(const KeyRights&) = delete;
  KeyRights& operator=(const KeyRights&) = delete;
  ~KeyRights();

 private:
  platform::RegistryKey key_;  // opened before, with all rights
};

// Puts a key back as it was.
class KeptKey {
 public:
  explicit KeptKey(std::string path) : path_(std::move(path)), was_(readKeys(path_)) {}
  KeptKey(const KeptKey&) = delete;
  KeptKey& operator=(const KeptKey&) = delete;
  ~KeptKey() { replaceKeys(path_, was_); }

 private:
  std::string path_;
  std::optional<RegistryTree> was_;
};

}  // namespace zelvane::test
