#include "core/settings_store.h"

#include "platform/identity.h"
#include "platform/settings_backend.h"

namespace zelvane::core {

std::string SettingsStore::load(Application application, const std::string& section,
                                const std::string& key, std::string_view absent) const {
  return backend_.find(name(application), section, key).value_or(std::string(absent));
}

void SettingsStore::save(Application application, const std::string& section,
                         const std::string& key, const std::string& text) {
  backend_.save(name(application), section, key, text);
}

std::string SettingsStore::name(Application application) const {
  return application == Application::title ? identity_.version().title : identity_.programFolder();
}

}  // namespace zelvane::core
