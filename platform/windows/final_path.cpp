#include "platform/windows/final_path.h"

namespace zelvane::platform {

std::optional<std::wstring> finalPath(HANDLE opened) {
  std::wstring path(GetFinalPathNameByHandleW(opened, nullptr, 0, 0), L'\0');
  const DWORD length =
      GetFinalPathNameByHandleW(opened, path.data(), static_cast<DWORD>(path.size()), 0);
  if (length == 0 || length >= path.size()) return std::nullopt;
  path.resize(length);
  return path;
}

}  // namespace zelvane::platform
