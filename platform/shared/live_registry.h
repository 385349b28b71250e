// A registry some of whose keys and values stand for what other programs keep.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace zelvane::platform {

// Over any desktop's registry, below the current user. Deleting a live key erases the lists that it
// stands for, wherever they lie, together with the key itself. A live value is kept in the registry
// like any other, and whom it concerns is told. All else is that registry's.
class LiveRegistry : public Registry {
 public:
  struct LiveKey {
    std::string path;
    std::function<void()> erase;  // what it cannot erase it leaves, and throws nothing
  };

  enum class Answers {
    asItStands,  // what it stands for, as far as that can be told; otherwise as was written
    asWritten,   // what was written, if anything was; otherwise as it stands
  };

  // The functions that are there are called. Where beforeSet or afterDelete throws an Error, the
  // answer is accessDenied; the others throw nothing.
  struct LiveValue {
    std::string path;
    std::string name;
    std::function<void()> beforeSet = nullptr;                       // an Error: it is not set
    std::function<void(const std::string& text)> written = nullptr;  // once a text is set
    std::function<void()> afterDelete = nullptr;                     // also where there was none
    std::function<std::optional<std::string>()> present = nullptr;   // a text
    Answers answers = Answers::asWritten;
  };

  // `registry` is borrowed.
  LiveRegistry(Registry& registry, std::vector<LiveKey> keys, std::vector<LiveValue> values = {});

  std::optional<std::string> check() override { return registry_.check(); }
  Opened open(Root root, const std::string& path) override;
  Opened create(Root root, const std::string& path) override;
  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override;
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;

  // Of a live key that the registry itself does not have: success.
  Result deleteKey(Root root, const std::string& path) override;

 private:
  Opened withValues(Root root, const std::string& path, Opened opened);
  const LiveValue* liveValue(Key key, const std::string& name) const;

  Registry& registry_;
  std::vector<LiveKey> keys_;
  std::vector<LiveValue> values_;
  std::map<Key, std::string> open_;  // the paths of those open keys that have live values
};

}  // namespace zelvane::platform
