// A registry one of whose values stands for something outside of it.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/registry.h"
#include "platform/shared/ledger.h"

namespace zelvane::platform {

// Over any desktop's registry, for one value below the current user. The value itself is kept like
// any other; all else is that registry's.
class MirroredValue : public Registry {
 public:
  struct Meaning {
    std::string path;                   // of the key
    std::string name;                   // of the value
    std::function<void()> beforeSet;    // where this throws an Error the value is not set either
    std::function<void()> afterDelete;  // also where the value was not there
  };

  // `registry` is borrowed.
  MirroredValue(Registry& registry, Meaning meaning);

  std::optional<std::string> check() override { return registry_.check(); }
  Opened open(Root root, const std::string& path) override;
  Opened create(Root root, const std::string& path) override;
  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override {
    return registry_.query(key, name);
  }

  // What is meant and fails is answered with accessDenied.
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;

  Result deleteKey(Root root, const std::string& path) override {
    return registry_.deleteKey(root, path);
  }

 private:
  Opened noticed(Opened opened, Root root, const std::string& path);
  bool isMeant(Key key, const std::string& name) const;

  Registry& registry_;
  Meaning meaning_;
  std::set<Key> keys_;  // the open ones that lead to the value
};

// A value that is noted in the ledger before it is set, and struck out when it was deleted.
MirroredValue::Meaning notedValue(Ledger& ledger, const std::string& path, const std::string& name);

}  // namespace zelvane::platform
