// A registry that fails when it is told to.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>

#include "platform/memory/faults.h"
#include "platform/registry.h"

namespace zelvane::platform {

// The subject of a call is the whole path from the root on, the value's name at its end.
class FaultyRegistry : public Registry {
 public:
  FaultyRegistry(Registry& registry, Faults& faults) : registry_(registry), faults_(faults) {}

  std::optional<std::string> check() override;
  Opened open(Root root, const std::string& path) override;
  Opened create(Root root, const std::string& path) override;
  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override;
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;
  Result deleteKey(Root root, const std::string& path) override;

 private:
  Opened remember(const Opened& opened, const std::string& path);
  std::string subject(Key key, const std::string& name) const;

  Registry& registry_;
  Faults& faults_;
  std::map<Key, std::string> paths_;  // of the open keys
};

}  // namespace zelvane::platform
