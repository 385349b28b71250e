#include "platform/shared/browsers/json_store.h"

#include "platform/error.h"
#include "platform/shared/browsers/json_file.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

bool isEmptyValue(const nlohmann::json& value) {
  return value.is_null() || (value.is_structured() && value.empty());
}

// What an extension was allowed or has stored is no trace of a site.
bool isOfExtension(std::string_view name) { return name.starts_with("chrome-extension:"); }

// Takes out what the path leads to, "*" standing for any part of a member's name. True if there was
// anything but empty values.
bool takeOut(nlohmann::json& from, std::string_view path) {
  if (!from.is_object()) return false;
  const std::size_t slash = path.find('/');
  const std::string_view name = path.substr(0, slash);
  bool found = false;
  for (auto member = from.begin(); member != from.end();) {
    if (!partFor(name, member.key()) || isOfExtension(member.key())) {
      ++member;
    } else if (slash == std::string_view::npos) {
      found = found || !isEmptyValue(*member);
      if (member->is_array()) {
        (member++)->clear();
      } else {
        member = from.erase(member);
      }
    } else {
      found = takeOut(*member, path.substr(slash + 1)) || found;
      ++member;
    }
  }
  return found;
}

bool takeOutAll(nlohmann::json& from, const JsonRule& rule) {
  bool found = false;
  for (const std::string_view path : rule.members) found = takeOut(from, path) || found;
  return found;
}

}  // namespace

JsonStore::JsonStore(std::string profile, const JsonRule& rule, const BrowserDesktop& desktop,
                     Files& files)
    : profile_(std::move(profile)), rule_(rule), desktop_(desktop), files_(files) {}

bool JsonStore::holdsAnything() const {
  try {
    auto content = readJson(path(), desktop_, files_);
    return content && takeOutAll(*content, rule_);
  } catch (const Error&) {
    return true;
  }
}

void JsonStore::erase() {
  auto content = readJson(path(), desktop_, files_);
  if (!content || !takeOutAll(*content, rule_)) return;
  const auto file = files_.createBeside(path());
  file->write(content->dump(-1, ' ', false, nlohmann::json::error_handler_t::strict));
  file->publish();
}

std::string JsonStore::path() const { return profile_ + "/" + std::string(rule_.file); }

}  // namespace zelvane::platform
