// A registry that knows which of its keys were never closed, and can be damaged or refuse.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/registry.h"
#include "platform/shared/ascii_case.h"

namespace zelvane::platform {

class MemoryRegistry : public Registry {
 public:
  // Holds the keys that a new desktop has, without any value.
  MemoryRegistry();

  std::optional<std::string> check() override;
  Opened open(Root root, const std::string& path) override;
  Opened create(Root root, const std::string& path) override;
  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override;
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;
  Result deleteKey(Root root, const std::string& path) override;

  // A string value without its closing zero byte; nothing where the key or the value is missing or
  // is no string.
  std::optional<std::string> text(Root root, const std::string& path,
                                  const std::string& name) const;
  // Any value as it is stored.
  std::optional<Value> value(Root root, const std::string& path, const std::string& name) const;
  bool hasKey(Root root, const std::string& path) const { return find(root, path) != kNoNode; }

  // Makes the key and those above it, without or with a string value; no handle comes of it.
  void addKey(Root root, const std::string& path) { make(root, path); }
  void put(Root root, const std::string& path, const std::string& name, const std::string& text);

  // From now on this key can be neither opened, written nor deleted, and none be made below it.
  void refuse(Root root, const std::string& path);

  // Makes the registry one that cannot be understood, until `check` has set it aside ...
  void damage() { damaged_ = true; }
  // ... or from now on one that cannot be read at all.
  void refuseEverything() { refusesReading_ = true; }

  // The keys that were opened and not closed, by the paths given, in the order of their opening.
  std::vector<std::string> openKeys() const;

 private:
  using NodeId = std::size_t;  // never used again after its key is deleted
  static constexpr NodeId kNoNode = 0;

  struct Node {
    std::map<std::string, NodeId, NameLess> keys;
    std::map<std::string, Value, NameLess> values;
    bool refused = false;
  };
  struct Handle {
    NodeId node;
    std::string path;
  };

  static NodeId idOf(Root root) { return static_cast<NodeId>(root) + 1; }
  NodeId find(Root root, const std::string& path) const;
  NodeId make(Root root, const std::string& path);  // kNoNode where one above refuses
  Opened openNode(NodeId node, const std::string& path);
  Result stateOf(Key key) const;
  bool isReadable() const { return !damaged_ && !refusesReading_; }
  void fillAsNew();

  std::map<NodeId, Node> nodes_;
  std::map<Key, Handle> handles_;
  NodeId lastNode_ = idOf(Root::localMachine);
  Key lastKey_ = 0;
  int setAside_ = 0;
  bool damaged_ = false;
  bool refusesReading_ = false;
};

}  // namespace zelvane::platform
