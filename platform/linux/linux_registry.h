// The hive: a registry of Zelvane's own in one private file, "registry.json".
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "platform/linux/environment.h"
#include "platform/linux/private_json_file.h"
#include "platform/registry.h"

namespace zelvane::platform {

//     $XDG_CONFIG_HOME/zelvane/registry.json
//     {
//       "format": 1,
//       "classes": { "keys": { ".DVK": KEY, ... } },
//       "currentUser": KEY,
//       "localMachine": KEY
//     }
//     KEY:    { "keys": { name: KEY, ... }, "values": { name: VALUE, ... } }
//     VALUE:  { "type": 1, "data": "about:blank\u0000" }      1 is a string, 4 a number
//
// Names and data are kept as any bytes (see json_text.h). A new hive holds the keys that a new
// desktop has.
class LinuxRegistry : public Registry {
 public:
  explicit LinuxRegistry(const Environment& environment);

  std::optional<std::string> check() override;
  Opened open(Root root, const std::string& path) override;
  Opened create(Root root, const std::string& path) override;
  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override;
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;
  Result deleteKey(Root root, const std::string& path) override;

 private:
  // The names from the root's member of the file down to the key.
  using Place = std::vector<std::string>;
  struct Handle {
    Place place;
    bool deleted = false;  // by this process; a later key of that name is another one
  };

  Opened newHandle(Place place);
  Result stateOf(Key key) const;
  nlohmann::json hive() const;
  Result change(const std::function<Result(nlohmann::json& hive)>& change);

  PrivateJsonFile file_;
  std::map<Key, Handle> handles_;
  Key lastKey_ = 0;
};

}  // namespace zelvane::platform
