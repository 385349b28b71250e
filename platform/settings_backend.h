// Where the user's choices live between runs: texts addressed by application, section and key.
#pragma once

#include <optional>
#include <string>

#include "platform/port.h"

namespace zelvane::platform {

// Any text may be a name or a value: empty, with "\", "/", "]", "=", line breaks. Names are told
// apart by case. The store is private to its user. Nothing is ever deleted or enumerated.
class SettingsBackend : public Port {
 public:
  // The stored text, or nothing where the application, section or key is not there or the store
  // cannot be read (which `check` told). An empty text is a text.
  virtual std::optional<std::string> find(const std::string& application,
                                          const std::string& section,
                                          const std::string& key) const = 0;

  // Replaces the value, creating application, section and key as needed. It is on disk before this
  // returns, whole or not at all; other values, also those that this version does not know and
  // those that another process wrote meanwhile, stay as they are. Throws when it cannot be written,
  // and also when the store is there but cannot be read: nothing that could still be saved by hand
  // is written over.
  virtual void save(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& text) = 0;

  // Looks the whole store over, once, before the first value is asked for. Nothing when all is well
  // or there is no store yet. One that cannot be understood, or comes from a newer format, is set
  // aside under a name of its own (never one that exists) and an empty one takes its place; one
  // that cannot be read stays where it is. Then this returns what to tell the user: what happened,
  // and the path under which the old store is to be found.
  virtual std::optional<std::string> check() = 0;
};

}  // namespace zelvane::platform
