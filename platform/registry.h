// The tree of system settings: keys that hold named values, addressed from three roots.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/port.h"

namespace zelvane::platform {

// Failures are result codes and not exceptions, because the program's rules are written in terms of
// codes that most of its callers deliberately do not look at.
//
// Paths part keys by "\". Names of keys and values are told apart without regard to (ASCII) case;
// the empty value name is a key's default value. A registry that cannot be read or understood
// (which `check` told) behaves as empty; one that cannot be written, these among them, answers
// `accessDenied`.
class Registry : public Port {
 public:
  enum class Root { classes, currentUser, localMachine };

  enum class Result : std::int32_t {
    success = 0,
    notFound = 2,
    accessDenied = 5,
    invalidHandle = 6,
  };

  enum class Type : std::uint32_t { string = 1, number = 4 };

  // Zero is no key.
  using Key = std::uint64_t;

  struct Opened {
    Result result = Result::notFound;
    Key key = 0;
  };

  struct Value {
    Type type{};
    std::vector<std::byte> data;  // as written; a string's closing zero byte included

    friend bool operator==(const Value&, const Value&) = default;
  };

  // Looks the whole registry over, once, before the first key is opened. Nothing when all is well
  // or there is none yet. One that cannot be understood, or comes from a newer format, is set aside
  // under a name of its own (never one that exists) and a new one takes its place; one that cannot
  // be read stays where it is. Then this returns what to tell the user: what happened, and the path
  // under which the old one is to be found.
  virtual std::optional<std::string> check() = 0;

  // Opens an existing key for full access. Each opened key is closed by `close` or by the end of
  // the process.
  virtual Opened open(Root root, const std::string& path) = 0;

  // The same, but makes the key and those above it where they are missing.
  virtual Opened create(Root root, const std::string& path) = 0;

  virtual void close(Key key) = 0;

  // Nothing where the value is not there or the key is not open.
  virtual std::optional<Value> query(Key key, const std::string& name) const = 0;

  // Replaces the value. It is on disk, whole or not at all, before this returns.
  virtual Result set(Key key, const std::string& name, Type type,
                     std::span<const std::byte> data) = 0;

  // `notFound` where the value is not there.
  virtual Result deleteValue(Key key, const std::string& name) = 0;

  // Deletes a key with all its values. One that has keys below it is refused with `accessDenied`;
  // whether someone holds it open does not matter: that one's further calls answer `notFound`.
  virtual Result deleteKey(Root root, const std::string& path) = 0;
};

}  // namespace zelvane::platform
