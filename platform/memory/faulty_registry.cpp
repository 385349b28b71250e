#include "platform/memory/faulty_registry.h"

namespace zelvane::platform {
namespace {

using Root = Registry::Root;

std::string fullPath(Root root, const std::string& path) {
  switch (root) {
    case Root::classes:
      return R"(HKEY_CLASSES_ROOT\)" + path;
    case Root::currentUser:
      return R"(HKEY_CURRENT_USER\)" + path;
    case Root::localMachine:
      return R"(HKEY_LOCAL_MACHINE\)" + path;
  }
  return path;
}

}  // namespace

std::optional<std::string> FaultyRegistry::check() {
  if (faults_.fails("Registry::check", "")) return "The registry cannot be read.";
  return registry_.check();
}

Registry::Opened FaultyRegistry::open(Root root, const std::string& path) {
  if (faults_.fails("Registry::open", fullPath(root, path))) return {Result::accessDenied, 0};
  return remember(registry_.open(root, path), fullPath(root, path));
}

Registry::Opened FaultyRegistry::create(Root root, const std::string& path) {
  if (faults_.fails("Registry::create", fullPath(root, path))) return {Result::accessDenied, 0};
  return remember(registry_.create(root, path), fullPath(root, path));
}

void FaultyRegistry::close(Key key) {
  paths_.erase(key);
  registry_.close(key);
}

std::optional<Registry::Value> FaultyRegistry::query(Key key, const std::string& name) const {
  if (faults_.fails("Registry::query", subject(key, name))) return std::nullopt;
  return registry_.query(key, name);
}

Registry::Result FaultyRegistry::set(Key key, const std::string& name, Type type,
                                     std::span<const std::byte> data) {
  if (faults_.fails("Registry::set", subject(key, name))) return Result::accessDenied;
  return registry_.set(key, name, type, data);
}

Registry::Result FaultyRegistry::deleteValue(Key key, const std::string& name) {
  if (faults_.fails("Registry::deleteValue", subject(key, name))) return Result::accessDenied;
  return registry_.deleteValue(key, name);
}

Registry::Result FaultyRegistry::deleteKey(Root root, const std::string& path) {
  if (faults_.fails("Registry::deleteKey", fullPath(root, path))) return Result::accessDenied;
  return registry_.deleteKey(root, path);
}

Registry::Opened FaultyRegistry::remember(const Opened& opened, const std::string& path) {
  if (opened.result == Result::success) paths_[opened.key] = path;
  return opened;
}

std::string FaultyRegistry::subject(Key key, const std::string& name) const {
  const auto path = paths_.find(key);
  return (path == paths_.end() ? "no key" : path->second) + "\\" + name;
}

}  // namespace zelvane::platform
