// A settings store that fails when it is told to.
#pragma once

#include <optional>
#include <string>

#include "platform/memory/faults.h"
#include "platform/settings_backend.h"

namespace zelvane::platform {

class FaultySettings : public SettingsBackend {
 public:
  FaultySettings(SettingsBackend& settings, Faults& faults)
      : settings_(settings), faults_(faults) {}

  std::optional<std::string> find(const std::string& application, const std::string& section,
                                  const std::string& key) const override;
  void save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;
  std::optional<std::string> check() override;

 private:
  SettingsBackend& settings_;
  Faults& faults_;
};

}  // namespace zelvane::platform
