#include "platform/windows/windows_settings.h"

#include <array>
#include <cstring>
#include <utility>

#include "platform/error.h"
#include "platform/windows/stored_name.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr const wchar_t* kFormatName = L"Format";
constexpr std::uint32_t kFormat = 1;

struct Place {
  std::vector<std::wstring> keys;  // from the branch down
  std::wstring value;
};

Place placeOf(const std::string& application, const std::string& section, const std::string& key) {
  Place place;
  for (const std::string* name : {&application, &section, &key}) {
    for (std::wstring& part : storedNames(*name)) place.keys.push_back(std::move(part));
  }
  place.value = std::move(place.keys.back());
  place.keys.pop_back();
  return place;
}

// A branch without a format is one that was made a moment ago and has no values yet.
bool isUnderstood(HKEY branch) {
  const auto format = readValue(branch, kFormatName);
  if (!format) return true;
  if (format->type != REG_DWORD || format->data.size() != sizeof(kFormat)) return false;
  return std::memcmp(format->data.data(), &kFormat, sizeof(kFormat)) == 0;
}

std::optional<std::string> textFrom(const StoredValue& value) {
  if (value.type == REG_BINARY) {
    return std::string(reinterpret_cast<const char*>(value.data.data()), value.data.size());
  }
  if (value.type != REG_SZ) return std::nullopt;
  std::wstring text = textIn(value.data);
  if (text.ends_with(L'\0')) text.pop_back();
  return plainText(text);
}

LSTATUS writeText(HKEY key, const std::wstring& name, const std::string& text) {
  const std::wstring wide = wideText(text);
  if (text.find('\0') != std::string::npos || plainText(wide) != text) {
    return writeValue(key, name, REG_BINARY, std::as_bytes(std::span(text)));
  }
  return writeValue(key, name, REG_SZ, dataOf(std::wstring_view(wide.c_str(), wide.size() + 1)));
}

void require(LSTATUS status) {
  if (status != ERROR_SUCCESS) throw errorFor(static_cast<std::uint32_t>(status));
}

RegistryKey madeKey(HKEY parent, const std::wstring& name) {
  OpenedKey made = createKey(parent, name);
  require(made.status);
  return std::move(made.key);
}

RegistryKey madeBranch(const std::wstring& path) {
  RegistryKey branch = madeKey(HKEY_CURRENT_USER, path);
  if (!isUnderstood(branch.get())) throw Error(ErrorNumber::accessError);
  if (!readValue(branch.get(), kFormatName)) {
    require(
        writeValue(branch.get(), kFormatName, REG_DWORD, std::as_bytes(std::span(&kFormat, 1))));
  }
  return branch;
}

std::vector<std::wstring> keysBelow(HKEY key) {
  std::vector<std::wstring> names;
  for (DWORD index = 0;; ++index) {
    std::array<wchar_t, 256> name{};
    auto length = static_cast<DWORD>(name.size());
    const LSTATUS status =
        RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_NO_MORE_ITEMS) return names;
    require(status);
    names.emplace_back(name.data(), length);
  }
}

// Throws for the first key, this one or below it, that cannot be read.
void readAll(HKEY parent, const std::wstring& name) {
  const OpenedKey opened = openKey(parent, name, KEY_READ);
  if (opened.status == ERROR_FILE_NOT_FOUND) return;
  require(opened.status);
  for (const std::wstring& below : keysBelow(opened.key.get())) readAll(opened.key.get(), below);
}

}  // namespace

WindowsSettings::WindowsSettings(const std::string& branch) : branch_(wideText(branch)) {}

std::string WindowsSettings::shownPath(const std::wstring& branch) const {
  return "HKEY_CURRENT_USER\\" + plainText(branch);
}

std::optional<std::string> WindowsSettings::find(const std::string& application,
                                                 const std::string& section,
                                                 const std::string& key) const {
  OpenedKey opened = openKey(HKEY_CURRENT_USER, branch_, KEY_READ);
  if (opened.status != ERROR_SUCCESS || !isUnderstood(opened.key.get())) return std::nullopt;
  const Place place = placeOf(application, section, key);
  for (const std::wstring& name : place.keys) {
    opened = openKey(opened.key.get(), name, KEY_READ);
    if (opened.status != ERROR_SUCCESS) return std::nullopt;
  }
  const auto value = readValue(opened.key.get(), place.value);
  return value ? textFrom(*value) : std::nullopt;
}

void WindowsSettings::save(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& text) {
  try {
    RegistryKey last = madeBranch(branch_);
    const Place place = placeOf(application, section, key);
    for (const std::wstring& name : place.keys) last = madeKey(last.get(), name);
    require(writeText(last.get(), place.value, text));
  } catch (const Error& error) {
    throw Error(error.number(),
                "The settings in \"" + shownPath(branch_) + "\" refuse. " + error.text() + ".");
  }
}

std::optional<std::string> WindowsSettings::check() {
  try {
    const OpenedKey branch = openKey(HKEY_CURRENT_USER, branch_, KEY_READ);
    if (branch.status == ERROR_SUCCESS && !isUnderstood(branch.key.get())) {
      return "The settings are damaged, or a newer version of the program wrote them. They are "
             "kept as \"" +
             setAside() + "\"; the program goes on with its defaults.";
    }
    readAll(HKEY_CURRENT_USER, branch_);
    return std::nullopt;
  } catch (const Error& error) {
    return "The settings in \"" + shownPath(branch_) + "\" cannot be read. " + error.text() + ".";
  }
}

std::wstring WindowsSettings::freeName() const {
  for (int number = 1;; ++number) {
    std::wstring name = branch_ + L".set-aside-" + std::to_wstring(number);
    if (openKey(HKEY_CURRENT_USER, name, KEY_READ).status == ERROR_FILE_NOT_FOUND) return name;
  }
}

std::string WindowsSettings::setAside() const {
  const std::wstring path = freeName();
  const std::wstring name = path.substr(path.rfind(L'\\') + 1);
  require(RegRenameKey(HKEY_CURRENT_USER, branch_.c_str(), name.c_str()));
  require(RegFlushKey(HKEY_CURRENT_USER));
  return shownPath(path);
}

}  // namespace zelvane::platform
