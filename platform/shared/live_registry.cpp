#include "platform/shared/live_registry.h"

#include <algorithm>
#include <utility>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/registry_names.h"

namespace zelvane::platform {
namespace {

bool isSamePath(const std::string& one, const std::string& other) {
  return std::ranges::equal(keyNames(one), keyNames(other), sameName);
}

// Up to its zero byte, as whoever reads it does.
std::string textOf(std::span<const std::byte> data) {
  std::string text;
  for (const std::byte byte : data) {
    if (byte == std::byte{0}) break;
    text += static_cast<char>(byte);
  }
  return text;
}

Registry::Value valueOf(const std::string& text) {
  const std::span<const char> withZero(text.c_str(), text.size() + 1);
  const auto bytes = std::as_bytes(withZero);
  return {Registry::Type::string, {bytes.begin(), bytes.end()}};
}

bool succeeds(const std::function<void()>& deed) {
  if (!deed) return true;
  try {
    deed();
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace

LiveRegistry::LiveRegistry(Registry& registry, std::vector<LiveKey> keys,
                           std::vector<LiveValue> values)
    : registry_(registry), keys_(std::move(keys)), values_(std::move(values)) {}

Registry::Opened LiveRegistry::open(Root root, const std::string& path) {
  return withValues(root, path, registry_.open(root, path));
}

Registry::Opened LiveRegistry::create(Root root, const std::string& path) {
  return withValues(root, path, registry_.create(root, path));
}

Registry::Opened LiveRegistry::withValues(Root root, const std::string& path, Opened opened) {
  const bool isLive =
      opened.result == Result::success && root == Root::currentUser &&
      std::ranges::any_of(values_, [&](const LiveValue& v) { return isSamePath(v.path, path); });
  if (isLive) open_.insert_or_assign(opened.key, path);
  return opened;
}

void LiveRegistry::close(Key key) {
  open_.erase(key);
  registry_.close(key);
}

const LiveRegistry::LiveValue* LiveRegistry::liveValue(Key key, const std::string& name) const {
  const auto opened = open_.find(key);
  if (opened == open_.end()) return nullptr;
  const auto value = std::ranges::find_if(values_, [&](const LiveValue& v) {
    return sameName(v.name, name) && isSamePath(v.path, opened->second);
  });
  return value == values_.end() ? nullptr : &*value;
}

std::optional<Registry::Value> LiveRegistry::query(Key key, const std::string& name) const {
  auto written = registry_.query(key, name);
  const LiveValue* live = liveValue(key, name);
  if (live == nullptr || !live->present) return written;
  if (written && live->answers == Answers::asWritten) return written;
  const std::optional<std::string> present = live->present();
  return present ? std::optional(valueOf(*present)) : written;
}

Registry::Result LiveRegistry::set(Key key, const std::string& name, Type type,
                                   std::span<const std::byte> data) {
  const LiveValue* live = liveValue(key, name);
  if (live != nullptr && !succeeds(live->beforeSet)) return Result::accessDenied;
  const Result result = registry_.set(key, name, type, data);
  if (live != nullptr && live->written && type == Type::string && result == Result::success) {
    live->written(textOf(data));
  }
  return result;
}

Registry::Result LiveRegistry::deleteValue(Key key, const std::string& name) {
  const Result result = registry_.deleteValue(key, name);
  const LiveValue* live = liveValue(key, name);
  return live == nullptr || succeeds(live->afterDelete) ? result : Result::accessDenied;
}

Registry::Result LiveRegistry::deleteKey(Root root, const std::string& path) {
  const Result result = registry_.deleteKey(root, path);
  const auto live =
      std::ranges::find_if(keys_, [&](const LiveKey& key) { return isSamePath(key.path, path); });
  if (root != Root::currentUser || live == keys_.end()) return result;
  live->erase();
  return result == Result::notFound ? Result::success : result;
}

}  // namespace zelvane::platform
