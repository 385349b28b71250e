// The system's registry.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/registry.h"
#include "platform/windows/registry_key.h"

namespace zelvane::platform {

// The system keeps its registry whole by itself, and a user without one cannot log on: `check` has
// nothing to tell. It looks at rights when a key is opened; who has opened a key may go on writing.
//
// The system holds texts in UTF-16. A string (REG_SZ, and also REG_EXPAND_SZ and REG_MULTI_SZ) is
// translated on its way in and out, so its data is UTF-8 here, with as many closing zero bytes as
// there are zero characters; one that is set without gets one. Other types are passed as they are.
// Names are told apart without regard to the case of any letter, not of ASCII alone.
class WindowsRegistry : public Registry {
 public:
  // The roots are the system's.
  WindowsRegistry() = default;

  // The roots are the keys "classes", "currentUser" and "localMachine" below this key of the
  // current user's. For tests.
  explicit WindowsRegistry(const std::string& branch);

  std::optional<std::string> check() override { return std::nullopt; }
  Opened open(Root root, const std::string& path) override;

  // A user may not have the right to add to the classes of the whole machine. Then the key is made
  // among the user's own, which the system shows in the same place.
  Opened create(Root root, const std::string& path) override;

  void close(Key key) override;
  std::optional<Value> query(Key key, const std::string& name) const override;
  Result set(Key key, const std::string& name, Type type, std::span<const std::byte> data) override;
  Result deleteValue(Key key, const std::string& name) override;
  Result deleteKey(Root root, const std::string& path) override;

 private:
  struct Place {
    HKEY root;
    std::wstring path;  // without a "\" too many; empty for the root itself
  };
  Place placeOf(Root root, const std::string& path) const;
  HKEY handle(Key key) const;
  Opened keep(OpenedKey opened);

  std::wstring branch_;
  std::map<Key, RegistryKey> handles_;
  Key lastKey_ = 0;
};

}  // namespace zelvane::platform
