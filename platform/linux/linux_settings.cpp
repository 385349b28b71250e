#include "platform/linux/linux_settings.h"

#include <nlohmann/json.hpp>

#include "platform/error.h"
#include "platform/linux/json_text.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

const json* child(const json* parent, const std::string& name) {
  if (parent == nullptr || !parent->is_object()) return nullptr;
  const auto found = parent->find(name);
  return found == parent->end() ? nullptr : &*found;
}

// Makes it where it is missing; what is there and cannot have children is not lost for it.
json& objectIn(json& parent, const std::string& name) {
  json& object = parent[name];
  if (object.is_null()) object = json::object();
  if (!object.is_object()) {
    throw Error(ErrorNumber::accessError,
                "The stored settings have something else in place of \"" + name + "\".");
  }
  return object;
}

// A store that cannot be read has nothing in it; `check` has told the user.
json readOrEmpty(const PrivateJsonFile& file) {
  try {
    return file.read();
  } catch (const Error&) {
    return json::object();
  }
}

}  // namespace

LinuxSettings::LinuxSettings(const Environment& environment)
    : file_(PrivateFile(environment.configHome + "/zelvane", "settings.json"),
            {{"applications", json::object()}}) {}

std::optional<std::string> LinuxSettings::find(const std::string& application,
                                               const std::string& section,
                                               const std::string& key) const {
  const json object = readOrEmpty(file_);
  const json* place = child(&object, "applications");
  for (const std::string& name : {application, section, key}) {
    place = child(place, toJsonText(name));
  }
  if (place == nullptr || !place->is_string()) return std::nullopt;
  return fromJsonText(place->get_ref<const std::string&>());
}

void LinuxSettings::save(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& text) {
  file_.update([&](json& object) {
    json& applications = objectIn(object, "applications");
    json& sections = objectIn(applications, toJsonText(application));
    objectIn(sections, toJsonText(section))[toJsonText(key)] = toJsonText(text);
  });
}

std::optional<std::string> LinuxSettings::check() {
  try {
    const auto kept = file_.setAsideIfDamaged();
    file_.read();
    if (!kept) return std::nullopt;
    return "The settings are damaged, or a newer version of the program wrote them. They are kept "
           "as \"" +
           *kept + "\"; the program goes on with its defaults.";
  } catch (const Error& error) {
    return "The settings cannot be read. " + error.text();
  }
}

}  // namespace zelvane::platform
