// A settings store that also remembers in which order it was written.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/settings_backend.h"

namespace zelvane::platform {

class MemorySettings : public SettingsBackend {
 public:
  // Under this application name most settings of the program are found.
  static constexpr const char* kTitle = "Zelvane";

  struct Save {
    std::string application;
    std::string section;
    std::string key;
    std::string text;

    friend bool operator==(const Save&, const Save&) = default;
  };

  std::optional<std::string> find(const std::string& application, const std::string& section,
                                  const std::string& key) const override;
  void save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;
  std::optional<std::string> check() override;

  // What is stored under the title.
  std::optional<std::string> find(const std::string& section, const std::string& key) const {
    return find(kTitle, section, key);
  }

  // Stores a value as an earlier run would have: it is not among `saves()`.
  void put(const std::string& application, const std::string& section, const std::string& key,
           const std::string& text);
  void put(const std::string& section, const std::string& key, const std::string& text) {
    put(kTitle, section, key, text);
  }

  // Every save that was accepted, in order; below, the keys alone.
  const std::vector<Save>& saves() const { return saves_; }
  std::vector<std::string> savedKeys() const;
  void forgetSaves() { saves_.clear(); }

  // From now on every save throws permissionDenied ...
  void refuseSaves() { refusesSaves_ = true; }
  // ... and nothing can be read either.
  void refuseEverything() { refusesSaves_ = refusesReading_ = true; }
  void refuseNothing() { refusesSaves_ = refusesReading_ = false; }

  // Makes the store one that cannot be understood, until `check` has set it aside.
  void damage() { damaged_ = true; }

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
  std::vector<Save> saves_;
  int setAside_ = 0;
  bool refusesSaves_ = false;
  bool refusesReading_ = false;
  bool damaged_ = false;
};

}  // namespace zelvane::platform
