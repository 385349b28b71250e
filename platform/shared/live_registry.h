// A registry some of whose keys stand for what other programs keep.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace zelvane::platform {

// Over any desktop's registry. A live key is one below the current user; deleting it erases the
// lists that it stands for, wherever they lie, together with the key itself. All else is that
// registry's.
class LiveRegistry : public Registry {
 public:
  struct LiveKey {
    std::string path;
    std::function<void()> erase;  // what it cannot erase it leaves, and throws nothing
  };

  // `registry` is borrowed.
  LiveRegistry(Registry& registry, std::vector<LiveKey> keys);

  std::optional<std::string> check() override { return registry_.check(); }
  Opened open(Root root, const std::string& path) override { return registry_.open(root, path); }
  Opened create(Root root, const std::string& path) override {
    return registry_.create(root, path);
  }
  void close(Key key) override { registry_.close(key); }
  std::optional<Value> query(Key key, const std::string& name) const override {
    return registry_.query(key, name);
  }
  Result set(Key key, const std::string& name, Type type,
             std::span<const std::byte> data) override {
    return registry_.set(key, name, type, data);
  }
  Result deleteValue(Key key, const std::string& name) override {
    return registry_.deleteValue(key, name);
  }

  // Of a live key that the registry itself does not have: success.
  Result deleteKey(Root root, const std::string& path) override;

 private:
  Registry& registry_;
  std::vector<LiveKey> keys_;
};

}  // namespace zelvane::platform
