#include "tests/desktop/windows/registry_tree.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <sddl.h>

#include "platform/windows/wide_text.h"

namespace zelvane::test {

using platform::plainText;
using platform::RegistryKey;
using platform::wideText;

namespace {

struct FreeLocal {
  void operator()(void* memory) const { LocalFree(memory); }
};

void require(LSTATUS status, const std::wstring& path) {
  if (status != ERROR_SUCCESS) {
    throw std::runtime_error(plainText(path) + ": error " + std::to_string(status));
  }
}

std::wstring joined(const std::wstring& path, const std::wstring& name) {
  return path.empty() ? name : path + L"\\" + name;
}

std::map<std::wstring, RegistryData> valuesOf(HKEY key) {
  std::map<std::wstring, RegistryData> values;
  std::vector<wchar_t> name(16'384);  // the longest that there is
  for (DWORD index = 0;; ++index) {
    auto length = static_cast<DWORD>(name.size());
    if (RegEnumValueW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return values;
    }
    const std::wstring found(name.data(), length);
    if (auto value = platform::readValue(key, found)) {
      values[found] = {value->type, std::move(value->data)};
    }
  }
}

std::vector<std::wstring> namesBelow(HKEY key) {
  std::vector<std::wstring> names;
  std::array<wchar_t, 256> name{};
  for (DWORD index = 0;; ++index) {
    auto length = static_cast<DWORD>(name.size());
    if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.emplace_back(name.data(), length);
  }
}

void read(const std::wstring& top, const std::wstring& below, RegistryTree& tree) {
  const std::wstring path = joined(top, below);
  const platform::OpenedKey opened = platform::openKey(HKEY_CURRENT_USER, path, KEY_READ);
  require(opened.status, path);
  tree[below] = valuesOf(opened.key.get());
  for (const std::wstring& name : namesBelow(opened.key.get())) {
    read(top, joined(below, name), tree);
  }
}

// Not on disk at once, which would take long and is of no use here.
void write(HKEY key, const std::wstring& name, const RegistryData& value) {
  require(RegSetValueExW(key, name.c_str(), 0, value.type,
                         reinterpret_cast<const BYTE*>(value.bytes.data()),
                         static_cast<DWORD>(value.bytes.size())),
          name);
}

RegistryKey made(const std::wstring& path) {
  platform::OpenedKey key = platform::createKey(HKEY_CURRENT_USER, path);
  require(key.status, path);
  return std::move(key.key);
}

}  // namespace

std::optional<RegistryTree> readKeys(const std::string& path) {
  const std::wstring top = wideText(path);
  if (platform::openKey(HKEY_CURRENT_USER, top, KEY_READ).status == ERROR_FILE_NOT_FOUND) {
    return std::nullopt;
  }
  RegistryTree tree;
  read(top, {}, tree);
  return tree;
}

void replaceKeys(const std::string& path, const std::optional<RegistryTree>& tree) {
  const std::wstring top = wideText(path);
  RegDeleteTreeW(HKEY_CURRENT_USER, top.c_str());
  if (!tree) return;
  for (const auto& [below, values] : *tree) {
    const RegistryKey key = made(joined(top, below));
    for (const auto& [name, value] : values) write(key.get(), name, value);
  }
}

std::optional<std::string> userText(const std::string& path, const std::string& name) {
  const platform::OpenedKey opened = platform::openKey(HKEY_CURRENT_USER, wideText(path), KEY_READ);
  if (opened.status != ERROR_SUCCESS) return std::nullopt;
  const auto value = platform::readValue(opened.key.get(), wideText(name));
  if (!value || value->type != REG_SZ) return std::nullopt;
  std::wstring text = platform::textIn(value->data);
  if (text.ends_with(L'\0')) text.pop_back();
  return plainText(text);
}

void setUserText(const std::string& path, const std::string& name, const std::string& text) {
  const std::wstring wide = wideText(text);
  const auto bytes = platform::dataOf({wide.c_str(), wide.size() + 1});
  setUserValue(path, name, {REG_SZ, {bytes.begin(), bytes.end()}});
}

void setUserValue(const std::string& path, const std::string& name, const RegistryData& value) {
  write(made(wideText(path)).get(), wideText(name), value);
}

KeyRights::KeyRights(const std::string& path, const std::string& rights)
    : key_(made(wideText(path))) {
  PSECURITY_DESCRIPTOR described = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(
          wideText(rights).c_str(), SDDL_REVISION_1, &described, nullptr) == 0) {
    throw std::invalid_argument("these are no rights: " + rights);
  }
  const std::unique_ptr<void, FreeLocal> freed(described);
  require(RegSetKeySecurity(key_.get(), DACL_SECURITY_INFORMATION, described), wideText(path));
}

KeyRights::~KeyRights() {
  SECURITY_DESCRIPTOR everyone{};
  InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
  SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
  RegSetKeySecurity(key_.get(), DACL_SECURITY_INFORMATION, &everyone);
}

}  // namespace zelvane::test
