#include "platform/windows/registry_key.h"

#include <cstring>

namespace zelvane::platform {

OpenedKey openKey(HKEY parent, const std::wstring& path, REGSAM rights) {
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExW(parent, path.c_str(), 0, rights, &key);
  return {status, RegistryKey(key)};
}

OpenedKey createKey(HKEY parent, const std::wstring& path) {
  HKEY key = nullptr;
  const LSTATUS status = RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                         KEY_ALL_ACCESS, nullptr, &key, nullptr);
  return {status, RegistryKey(key)};
}

std::optional<StoredValue> readValue(HKEY key, const std::wstring& name) {
  StoredValue value{REG_NONE, {}};
  DWORD size = 0;
  LSTATUS status = RegQueryValueExW(key, name.c_str(), nullptr, nullptr, nullptr, &size);
  // Another process may have put a longer one there since it told the size.
  do {
    if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) return std::nullopt;
    value.data.resize(size);
    status = RegQueryValueExW(key, name.c_str(), nullptr, &value.type,
                              reinterpret_cast<BYTE*>(value.data.data()), &size);
  } while (status != ERROR_SUCCESS);
  value.data.resize(size);
  return value;
}

LSTATUS writeValue(HKEY key, const std::wstring& name, DWORD type,
                   std::span<const std::byte> data) {
  const LSTATUS status =
      RegSetValueExW(key, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                     static_cast<DWORD>(data.size()));
  return status == ERROR_SUCCESS ? RegFlushKey(key) : status;
}

std::span<const std::byte> dataOf(std::wstring_view text) {
  return std::as_bytes(std::span(text.data(), text.size()));
}

std::wstring textIn(std::span<const std::byte> data) {
  std::wstring text(data.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
  return text;
}

}  // namespace zelvane::platform
