#include "platform/shared/mirrored_value.h"

#include <algorithm>
#include <utility>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/registry_names.h"

namespace zelvane::platform {
namespace {

bool succeeds(const std::function<void()>& deed) {
  try {
    deed();
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace

MirroredValue::MirroredValue(Registry& registry, Meaning meaning)
    : registry_(registry), meaning_(std::move(meaning)) {}

Registry::Opened MirroredValue::open(Root root, const std::string& path) {
  return noticed(registry_.open(root, path), root, path);
}

Registry::Opened MirroredValue::create(Root root, const std::string& path) {
  return noticed(registry_.create(root, path), root, path);
}

void MirroredValue::close(Key key) {
  keys_.erase(key);
  registry_.close(key);
}

Registry::Result MirroredValue::set(Key key, const std::string& name, Type type,
                                    std::span<const std::byte> data) {
  if (isMeant(key, name) && !succeeds(meaning_.beforeSet)) return Result::accessDenied;
  return registry_.set(key, name, type, data);
}

Registry::Result MirroredValue::deleteValue(Key key, const std::string& name) {
  const Result result = registry_.deleteValue(key, name);
  if (isMeant(key, name) && !succeeds(meaning_.afterDelete)) return Result::accessDenied;
  return result;
}

Registry::Opened MirroredValue::noticed(Opened opened, Root root, const std::string& path) {
  if (opened.result == Result::success && root == Root::currentUser &&
      std::ranges::equal(keyNames(meaning_.path), keyNames(path), sameName)) {
    keys_.insert(opened.key);
  }
  return opened;
}

bool MirroredValue::isMeant(Key key, const std::string& name) const {
  return keys_.contains(key) && sameName(name, meaning_.name);
}

MirroredValue::Meaning notedValue(Ledger& ledger, const std::string& path,
                                  const std::string& name) {
  const Ledger::Entry entry{Ledger::Kind::registryValue,
                            R"(HKEY_CURRENT_USER\)" + path + "\\" + name};
  return {.path = path,
          .name = name,
          .beforeSet = [&ledger, entry] { ledger.note(entry); },
          .afterDelete = [&ledger, entry] { ledger.strike(entry); }};
}

}  // namespace zelvane::platform
