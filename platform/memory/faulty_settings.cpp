#include "platform/memory/faulty_settings.h"

namespace zelvane::platform {

std::optional<std::string> FaultySettings::find(const std::string& application,
                                                const std::string& section,
                                                const std::string& key) const {
  if (faults_.fails("SettingsBackend::find", section + "/" + key)) return std::nullopt;
  return settings_.find(application, section, key);
}

void FaultySettings::save(const std::string& application, const std::string& section,
                          const std::string& key, const std::string& text) {
  faults_.throwIfItFails(ErrorNumber::diskFull, "SettingsBackend::save", section + "/" + key);
  settings_.save(application, section, key, text);
}

std::optional<std::string> FaultySettings::check() {
  if (faults_.fails("SettingsBackend::check", "")) return "The settings cannot be read.";
  return settings_.check();
}

}  // namespace zelvane::platform
