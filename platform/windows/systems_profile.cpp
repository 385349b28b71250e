#include "platform/windows/systems_profile.h"

#include <array>

#include <windows.h>

#include "platform/windows/registry_key.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {

bool isKeptInRegistry(const std::wstring& file, const std::string& section) {
  if (section.find('\0') != std::string::npos) return false;
  const std::wstring name = wideText(section);
  const OpenedKey list =
      openKey(HKEY_LOCAL_MACHINE,
              LR"(SOFTWARE\Microsoft\Windows NT\CurrentVersion\IniFileMapping\)" + file, KEY_READ);
  if (list.status != ERROR_SUCCESS) return false;
  return readValue(list.key.get(), name) ||
         openKey(list.key.get(), name, KEY_READ).status == ERROR_SUCCESS;
}

std::optional<std::string> findInSystemsProfile(const std::wstring& file,
                                                const std::string& section,
                                                const std::string& key) {
  std::array<wchar_t, 256> text{};
  const auto read = [&](const wchar_t* absent) {
    const DWORD length =
        GetPrivateProfileStringW(wideText(section).c_str(), wideText(key).c_str(), absent,
                                 text.data(), static_cast<DWORD>(text.size()), file.c_str());
    return plainText({text.data(), length});
  };
  // An entry that is missing reads as whatever stands for that.
  if (read(L"absent") == "absent" && read(L"missing") == "missing") return std::nullopt;
  return plainText(text.data());
}

bool writeToSystemsProfile(const std::wstring& file, const std::string& section,
                           const std::string& key, const std::string& text) {
  return WritePrivateProfileStringW(wideText(section).c_str(), wideText(key).c_str(),
                                    wideText(text).c_str(), file.c_str()) != 0;
}

}  // namespace zelvane::platform
