// What every registry promises, whatever it is made of.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/registry.h"

namespace zelvane::test {

// The registry of a new desktop.
class RegistryBed {
 public:
  virtual ~RegistryBed() = default;

  virtual platform::Registry& registry() = 0;

  // The same registry in the hands of a second process.
  virtual platform::Registry& inAnotherProcess() = 0;

  // Why no key can be made unwritable here; empty where it can.
  virtual std::string whyNoRefusals() const { return {}; }
  // From now on the key, which exists, cannot be written, nor one be made below it.
  virtual void makeUnwritable(platform::Registry::Root root, const std::string& path) = 0;

  // Why the registry as a whole can be neither damaged nor unreadable here; empty where it can.
  virtual std::string whyNoDamage() const { return {}; }
  // Makes the registry one that nobody understands ...
  virtual void damage() = 0;
  // ... or one that cannot be read at all.
  virtual void makeUnreadable() = 0;
};

using MakeRegistryBed = std::unique_ptr<RegistryBed> (*)();

inline std::vector<std::byte> bytesOf(std::string_view text) {
  std::vector<std::byte> bytes;
  for (const char c : text) bytes.push_back(static_cast<std::byte>(c));
  return bytes;
}

class RegistryContract : public testing::TestWithParam<MakeRegistryBed> {
 protected:
  using Registry = platform::Registry;
  using Root = Registry::Root;
  using Result = Registry::Result;
  using Type = Registry::Type;

  // With its closing zero byte.
  static std::vector<std::byte> string(std::string_view text) {
    return bytesOf(std::string(text) + '\0');
  }
  Result set(Registry::Key key, const std::string& name, std::string_view text) {
    return registry.set(key, name, Type::string, string(text));
  }
  std::optional<std::vector<std::byte>> data(Registry::Key key, const std::string& name) const {
    const auto value = registry.query(key, name);
    return value ? std::optional(value->data) : std::nullopt;
  }

  std::unique_ptr<RegistryBed> bed = GetParam()();
  Registry& registry = bed->registry();
};

}  // namespace zelvane::test
