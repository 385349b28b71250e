#include "platform/windows/windows_profile_file.h"

#include <array>
#include <cstring>
#include <string_view>

#include <windows.h>

#include "platform/error.h"
#include "platform/shared/ini_text.h"
#include "platform/windows/system_error.h"
#include "platform/windows/systems_profile.h"
#include "platform/windows/whole_file.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr std::string_view kWideMark = "\xFF\xFE";  // UTF-16, low byte first

bool isWide(std::string_view content) { return content.starts_with(kWideMark); }

std::string textOf(std::string_view content) {
  if (!isWide(content)) return std::string(content);
  content.remove_prefix(kWideMark.size());
  std::wstring text(content.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), content.data(), text.size() * sizeof(wchar_t));
  return plainText(text);
}

std::string contentOf(std::string_view text, bool wide) {
  if (!wide) return std::string(text);
  const std::wstring units = wideText(text);
  std::string content(kWideMark);
  content.append(reinterpret_cast<const char*>(units.data()), units.size() * sizeof(wchar_t));
  return content;
}

std::string systemsFolder() {
  std::array<wchar_t, MAX_PATH + 1> path{};
  const UINT length = GetSystemWindowsDirectoryW(path.data(), static_cast<UINT>(path.size()));
  if (length == 0 || length >= path.size()) throwSystemError();
  return plainText({path.data(), length});
}

}  // namespace

WindowsProfileFile::WindowsProfileFile()
    : path_(systemsFolder() + "\\win.ini"), systemsName_(L"win.ini") {}

WindowsProfileFile::WindowsProfileFile(const std::string& path) : path_(path) {}

bool WindowsProfileFile::isTheSystems(const std::string& section) const {
  return !systemsName_.empty() && isKeptInRegistry(systemsName_, section);
}

std::optional<std::string> WindowsProfileFile::find(const std::string& section,
                                                    const std::string& key) const {
  try {
    const auto text = isTheSystems(section)
                          ? findInSystemsProfile(systemsName_, section, key)
                          : IniText(textOf(readWholeFile(path_).value_or(""))).find(section, key);
    if (!text) return std::nullopt;
    return cutText(*text, kLongestText);
  } catch (const Error&) {
    return std::nullopt;  // a file that cannot be read has no entries
  }
}

bool WindowsProfileFile::write(const std::string& section, const std::string& key,
                               const std::string& text) {
  try {
    if (isTheSystems(section)) {
      return IniText("").set(section, key, text) &&
             writeToSystemsProfile(systemsName_, section, key, text);
    }
    const std::string content = readWholeFile(path_).value_or("");
    IniText file(textOf(content));
    if (!file.set(section, key, text)) return false;
    replaceWholeFile(path_, contentOf(file.text(), isWide(content)));
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace zelvane::platform
