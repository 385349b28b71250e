#include "platform/windows/windows_registry.h"

#include <algorithm>
#include <utility>

#include "platform/shared/registry_names.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

using Result = Registry::Result;

Result resultOf(LSTATUS status) {
  switch (status) {
    case ERROR_SUCCESS:
      return Result::success;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_KEY_DELETED:
      return Result::notFound;
    default:
      return Result::accessDenied;
  }
}

// The system would cut a name at a zero character and take it for another one.
bool canBeName(const std::string& name) { return name.find('\0') == std::string::npos; }

bool isText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ; }

std::string bytesAsText(std::span<const std::byte> data) {
  return {reinterpret_cast<const char*>(data.data()), data.size()};
}

std::vector<std::byte> textAsBytes(std::string_view text) {
  const auto bytes = std::as_bytes(std::span(text.data(), text.size()));
  return {bytes.begin(), bytes.end()};
}

HKEY systemsRoot(Registry::Root root) {
  switch (root) {
    case Registry::Root::classes:
      return HKEY_CLASSES_ROOT;
    case Registry::Root::currentUser:
      return HKEY_CURRENT_USER;
    case Registry::Root::localMachine:
      return HKEY_LOCAL_MACHINE;
  }
  return nullptr;
}

std::wstring branchName(Registry::Root root) {
  switch (root) {
    case Registry::Root::classes:
      return L"\\classes";
    case Registry::Root::currentUser:
      return L"\\currentUser";
    case Registry::Root::localMachine:
      return L"\\localMachine";
  }
  return {};
}

std::wstring joined(std::wstring path, const std::string& more) {
  for (const std::string& name : keyNames(more)) {
    if (!path.empty()) path += L'\\';
    path += wideText(name);
  }
  return path;
}

}  // namespace

WindowsRegistry::WindowsRegistry(const std::string& branch) : branch_(wideText(branch)) {}

WindowsRegistry::Place WindowsRegistry::placeOf(Root root, const std::string& path) const {
  if (branch_.empty()) return {systemsRoot(root), joined({}, path)};
  return {HKEY_CURRENT_USER, joined(branch_ + branchName(root), path)};
}

HKEY WindowsRegistry::handle(Key key) const {
  const auto found = handles_.find(key);
  return found == handles_.end() ? nullptr : found->second.get();
}

Registry::Opened WindowsRegistry::keep(OpenedKey opened) {
  const Result result = resultOf(opened.status);
  if (result != Result::success) return {result, 0};
  handles_.emplace(++lastKey_, std::move(opened.key));
  return {result, lastKey_};
}

Registry::Opened WindowsRegistry::open(Root root, const std::string& path) {
  if (!canBeName(path)) return {Result::notFound, 0};
  const Place place = placeOf(root, path);
  OpenedKey opened = openKey(place.root, place.path, KEY_ALL_ACCESS);
  // A name that no key can have (it may be too long) is one that is not there.
  if (opened.status == ERROR_INVALID_PARAMETER) return {Result::notFound, 0};
  return keep(std::move(opened));
}

Registry::Opened WindowsRegistry::create(Root root, const std::string& path) {
  if (!canBeName(path)) return {Result::accessDenied, 0};
  const Place place = placeOf(root, path);
  OpenedKey opened = createKey(place.root, place.path);
  if (opened.status == ERROR_ACCESS_DENIED && root == Root::classes) {
    const Place own = placeOf(Root::currentUser, R"(Software\Classes\)" + path);
    opened = createKey(own.root, own.path);
  }
  // A new key is on disk before anyone builds on it.
  if (opened.status == ERROR_SUCCESS) opened.status = RegFlushKey(opened.key.get());
  return keep(std::move(opened));
}

void WindowsRegistry::close(Key key) { handles_.erase(key); }

std::optional<Registry::Value> WindowsRegistry::query(Key key, const std::string& name) const {
  const HKEY opened = handle(key);
  if (opened == nullptr || !canBeName(name)) return std::nullopt;
  auto value = readValue(opened, wideText(name));
  if (!value) return std::nullopt;
  if (isText(value->type)) value->data = textAsBytes(plainText(textIn(value->data)));
  return Value{Type{value->type}, std::move(value->data)};
}

Registry::Result WindowsRegistry::set(Key key, const std::string& name, Type type,
                                      std::span<const std::byte> data) {
  const HKEY opened = handle(key);
  if (opened == nullptr) return Result::invalidHandle;
  if (!canBeName(name)) return Result::accessDenied;
  const auto systemsType = static_cast<DWORD>(type);
  if (!isText(systemsType)) {
    return resultOf(writeValue(opened, wideText(name), systemsType, data));
  }
  const std::wstring text = wideText(bytesAsText(data));
  return resultOf(writeValue(opened, wideText(name), systemsType, dataOf(text)));
}

Registry::Result WindowsRegistry::deleteValue(Key key, const std::string& name) {
  const HKEY opened = handle(key);
  if (opened == nullptr) return Result::invalidHandle;
  if (!canBeName(name)) return Result::notFound;
  const LSTATUS status = RegDeleteValueW(opened, wideText(name).c_str());
  return resultOf(status == ERROR_SUCCESS ? RegFlushKey(opened) : status);
}

Registry::Result WindowsRegistry::deleteKey(Root root, const std::string& path) {
  if (!canBeName(path)) return Result::notFound;
  if (keyNames(path).empty()) return Result::accessDenied;
  const Place place = placeOf(root, path);
  const LSTATUS status = RegDeleteKeyW(place.root, place.path.c_str());
  return resultOf(status == ERROR_SUCCESS ? RegFlushKey(place.root) : status);
}

}  // namespace zelvane::platform
