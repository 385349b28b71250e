#include "platform/memory/memory_registry.h"

#include <algorithm>

#include "platform/shared/registry_names.h"

namespace zelvane::platform {

MemoryRegistry::MemoryRegistry() { fillAsNew(); }

void MemoryRegistry::fillAsNew() {
  nodes_.clear();
  for (const Root root : {Root::classes, Root::currentUser, Root::localMachine}) {
    nodes_[idOf(root)];
  }
  for (const KeyPath& key : kKeysOfANewDesktop) addKey(key.root, std::string(key.path));
}

std::optional<std::string> MemoryRegistry::check() {
  if (refusesReading_) return "The registry cannot be read.";
  if (!damaged_) return std::nullopt;
  damaged_ = false;
  fillAsNew();
  return "The registry was damaged. The old one is kept as \"registry.set-aside-" +
         std::to_string(++setAside_) + "\".";
}

MemoryRegistry::NodeId MemoryRegistry::find(Root root, const std::string& path) const {
  NodeId node = idOf(root);
  for (const std::string& name : keyNames(path)) {
    const auto& keys = nodes_.at(node).keys;
    const auto next = keys.find(name);
    if (next == keys.end()) return kNoNode;
    node = next->second;
  }
  return node;
}

MemoryRegistry::NodeId MemoryRegistry::make(Root root, const std::string& path) {
  NodeId node = idOf(root);
  for (const std::string& name : keyNames(path)) {
    Node& parent = nodes_.at(node);
    const auto next = parent.keys.find(name);
    if (next == parent.keys.end() && parent.refused) return kNoNode;
    node = next != parent.keys.end() ? next->second : ++lastNode_;
    parent.keys.try_emplace(name, node);
    nodes_[node];
  }
  return node;
}

Registry::Opened MemoryRegistry::openNode(NodeId node, const std::string& path) {
  if (nodes_.at(node).refused) return {Result::accessDenied, 0};
  handles_.emplace(++lastKey_, Handle{node, path});
  return {Result::success, lastKey_};
}

Registry::Opened MemoryRegistry::open(Root root, const std::string& path) {
  const NodeId node = isReadable() ? find(root, path) : kNoNode;
  if (node == kNoNode) return {Result::notFound, 0};
  return openNode(node, path);
}

Registry::Opened MemoryRegistry::create(Root root, const std::string& path) {
  const NodeId node = isReadable() ? make(root, path) : kNoNode;
  if (node == kNoNode) return {Result::accessDenied, 0};
  return openNode(node, path);
}

void MemoryRegistry::close(Key key) { handles_.erase(key); }

Registry::Result MemoryRegistry::stateOf(Key key) const {
  const auto handle = handles_.find(key);
  if (handle == handles_.end()) return Result::invalidHandle;
  if (!isReadable()) return Result::accessDenied;
  const auto node = nodes_.find(handle->second.node);
  if (node == nodes_.end()) return Result::notFound;
  return node->second.refused ? Result::accessDenied : Result::success;
}

std::optional<Registry::Value> MemoryRegistry::query(Key key, const std::string& name) const {
  if (stateOf(key) != Result::success) return std::nullopt;
  const auto& values = nodes_.at(handles_.at(key).node).values;
  const auto value = values.find(name);
  if (value == values.end()) return std::nullopt;
  return value->second;
}

Registry::Result MemoryRegistry::set(Key key, const std::string& name, Type type,
                                     std::span<const std::byte> data) {
  const Result result = stateOf(key);
  if (result != Result::success) return result;
  nodes_.at(handles_.at(key).node).values[name] = {type, {data.begin(), data.end()}};
  return Result::success;
}

Registry::Result MemoryRegistry::deleteValue(Key key, const std::string& name) {
  const Result result = stateOf(key);
  if (result != Result::success) return result;
  const bool erased = nodes_.at(handles_.at(key).node).values.erase(name) > 0;
  return erased ? Result::success : Result::notFound;
}

Registry::Result MemoryRegistry::deleteKey(Root root, const std::string& path) {
  if (!isReadable()) return Result::accessDenied;
  const NodeId node = find(root, path);
  if (node == kNoNode) return Result::notFound;
  if (node == idOf(root) || nodes_.at(node).refused || !nodes_.at(node).keys.empty()) {
    return Result::accessDenied;
  }
  for (auto& [id, other] : nodes_) {
    std::erase_if(other.keys, [node](const auto& entry) { return entry.second == node; });
  }
  nodes_.erase(node);
  return Result::success;
}

std::optional<Registry::Value> MemoryRegistry::value(Root root, const std::string& path,
                                                     const std::string& name) const {
  const NodeId node = find(root, path);
  if (node == kNoNode) return std::nullopt;
  const auto& values = nodes_.at(node).values;
  const auto value = values.find(name);
  if (value == values.end()) return std::nullopt;
  return value->second;
}

std::optional<std::string> MemoryRegistry::text(Root root, const std::string& path,
                                                const std::string& name) const {
  const auto stored = value(root, path, name);
  if (!stored || stored->type != Type::string) return std::nullopt;
  std::string text(stored->data.size(), '\0');
  std::ranges::transform(stored->data, text.begin(),
                         [](std::byte byte) { return std::to_integer<char>(byte); });
  if (text.ends_with('\0')) text.pop_back();
  return text;
}

void MemoryRegistry::put(Root root, const std::string& path, const std::string& name,
                         const std::string& text) {
  std::vector<std::byte> data(text.size() + 1);
  std::ranges::transform(text, data.begin(), [](char c) { return static_cast<std::byte>(c); });
  nodes_.at(make(root, path)).values[name] = {Type::string, std::move(data)};
}

void MemoryRegistry::refuse(Root root, const std::string& path) {
  nodes_.at(make(root, path)).refused = true;
}

std::vector<std::string> MemoryRegistry::openKeys() const {
  std::vector<std::string> paths;
  for (const auto& [key, handle] : handles_) paths.push_back(handle.path);
  return paths;
}

}  // namespace zelvane::platform
