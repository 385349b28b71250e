#include "platform/memory/memory_settings.h"

#include "platform/error.h"

namespace zelvane::platform {

std::optional<std::string> MemorySettings::find(const std::string& application,
                                                const std::string& section,
                                                const std::string& key) const {
  if (refusesReading_ || damaged_) return std::nullopt;
  const auto found = values_.find({application, section, key});
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

void MemorySettings::save(const std::string& application, const std::string& section,
                          const std::string& key, const std::string& text) {
  if (refusesSaves_) throw Error(ErrorNumber::permissionDenied);
  if (damaged_) throw Error(ErrorNumber::accessError, "The settings are damaged.");
  put(application, section, key, text);
  saves_.push_back({application, section, key, text});
}

std::optional<std::string> MemorySettings::check() {
  if (refusesReading_) return "The settings cannot be read.";
  if (!damaged_) return std::nullopt;
  damaged_ = false;
  values_.clear();
  return "The settings were damaged. The old ones are kept as \"settings.set-aside-" +
         std::to_string(++setAside_) + "\".";
}

void MemorySettings::put(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& text) {
  values_.insert_or_assign({application, section, key}, text);
}

std::vector<std::string> MemorySettings::savedKeys() const {
  std::vector<std::string> keys;
  for (const Save& save : saves_) keys.push_back(save.key);
  return keys;
}

}  // namespace zelvane::platform
