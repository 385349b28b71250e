#include "platform/windows/long_path.h"

#include <algorithm>

#include <windows.h>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr std::wstring_view kLongForm = L"\\\\?\\";
constexpr std::wstring_view kDeviceForm = L"\\\\.\\";
constexpr std::wstring_view kServer = L"\\\\";

bool namesDrive(std::wstring_view path) {
  return path.size() >= 2 && path[1] == L':' &&
         ((path[0] >= L'A' && path[0] <= L'Z') || (path[0] >= L'a' && path[0] <= L'z'));
}

// What the system makes of "." (the current folder), "X:." or "\" (the current drive).
std::wstring systemsPath(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  const DWORD length =
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (length == 0 || length >= full.size()) throwSystemError();
  full.resize(length);
  return full;
}

std::wstring joined(const std::wstring& folder, std::wstring_view rest) {
  return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + std::wstring(rest);
}

// With backslashes only; begins with a drive and a separator, or with two separators.
std::wstring absolute(std::wstring path) {
  if (path.starts_with(kServer)) return path;
  if (path.starts_with(L"\\")) return joined(systemsPath(L"\\"), path.substr(1));
  if (!namesDrive(path)) return joined(systemsPath(L"."), path);
  if (path.size() > 2 && path[2] == L'\\') return path;
  return joined(systemsPath(path.substr(0, 2) + L"."), path.substr(2));
}

// Appends the names, resolved; ".." goes no higher than `top`.
void append(std::wstring& path, std::wstring_view names) {
  const std::size_t top = path.size();
  while (!names.empty()) {
    const std::wstring_view name = names.substr(0, names.find(L'\\'));
    names.remove_prefix(std::min(name.size() + 1, names.size()));
    if (name == L"..") {
      path.resize(std::max(top, path.size() > top ? path.rfind(L'\\') : top));
    } else if (!name.empty() && name != L".") {
      path.append(L"\\").append(name);
    }
  }
}

// "server\share" of "server\share\x"; two names that no ".." takes away.
std::wstring_view shareOf(std::wstring_view path) {
  const std::size_t server = path.find(L'\\');
  return path.substr(0, server == path.npos ? server : path.find(L'\\', server + 1));
}

}  // namespace

std::wstring longPath(std::string_view given) {
  std::wstring path = wideName(given);
  if (path.empty() || path.starts_with(kLongForm) || path.starts_with(kDeviceForm)) return path;
  std::ranges::replace(path, L'/', L'\\');
  if (path.starts_with(kDeviceForm)) return path;
  path = absolute(std::move(path));
  const bool hasClosing = path.ends_with(L'\\');
  std::wstring result(kLongForm);
  std::wstring_view rest = path;
  if (path.starts_with(kServer)) {
    rest.remove_prefix(kServer.size());
    const std::wstring_view share = shareOf(rest);
    result.append(L"UNC\\").append(share);
    rest.remove_prefix(share.size());
  } else {
    result.append(rest.substr(0, 2));
    rest.remove_prefix(2);
  }
  const std::size_t top = result.size();
  append(result, rest);
  // Without a separator behind it, a drive would be the device and not its first folder.
  if (hasClosing || result.size() == top) result += L'\\';
  return result;
}

std::string withoutClosingSeparators(std::string_view path) {
  const auto endsInSeparator = [](std::string_view text) {
    return text.ends_with('\\') || text.ends_with('/');
  };
  while (path.size() > 1 && endsInSeparator(path) && path[path.size() - 2] != ':') {
    path.remove_suffix(1);
  }
  return std::string(path);
}

}  // namespace zelvane::platform
