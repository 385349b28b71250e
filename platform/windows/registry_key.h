// Keys of the system's registry, and what lies in them.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

namespace zelvane::platform {

// Closing one of the system's own roots does nothing.
struct CloseKey {
  using pointer = HKEY;
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using RegistryKey = std::unique_ptr<HKEY, CloseKey>;

struct OpenedKey {
  LSTATUS status;  // the system's answer; the key is there when it is ERROR_SUCCESS
  RegistryKey key;
};

OpenedKey openKey(HKEY parent, const std::wstring& path, REGSAM rights);

// Opens it for full access, and makes it and those above it where they are missing.
OpenedKey createKey(HKEY parent, const std::wstring& path);

struct StoredValue {
  DWORD type;
  std::vector<std::byte> data;
};

// Nothing where the value is not there or cannot be read.
std::optional<StoredValue> readValue(HKEY key, const std::wstring& name);

// Replaces it, and returns when it is on disk.
LSTATUS writeValue(HKEY key, const std::wstring& name, DWORD type, std::span<const std::byte> data);

// The bytes of a text as a value holds them, and back. Half a unit at the end is no text.
std::span<const std::byte> dataOf(std::wstring_view text);
std::wstring textIn(std::span<const std::byte> data);

}  // namespace zelvane::platform
