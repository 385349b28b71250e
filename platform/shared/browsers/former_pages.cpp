#include "platform/shared/browsers/former_pages.h"

#include <utility>

#include "platform/error.h"
#include "platform/shared/browsers/json_file.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

constexpr int kFormat = 1;

// Names of folders may be any bytes. What cannot be written is shown as such.
std::string writable(const json& value, int indent = -1) {
  return value.dump(indent, ' ', false, json::error_handler_t::replace);
}

std::string readable(const std::string& bytes) {
  return json::parse(writable(bytes)).get<std::string>();
}

bool isUnderstood(const json& notes) {
  return notes.is_object() && notes.value("format", json()) == kFormat &&
         notes.value("profiles", json()).is_object();
}

}  // namespace

FormerPages::FormerPages(std::string dataFolder, const BrowserDesktop& desktop, Files& files)
    : dataFolder_(std::move(dataFolder)), desktop_(desktop), files_(files) {}

std::string FormerPages::path() const { return dataFolder_ + "/start-pages.json"; }

bool FormerPages::note(const Profile& profile, const Settings& settings) {
  desktop_.provideFolder(dataFolder_);
  json notes = read();
  json& profiles = notes["profiles"];
  const std::string folder = readable(profile.folder);
  if (profiles.contains(folder)) return false;
  json former = json::object();
  for (const auto& [name, value] : settings) former[name] = value.value_or(json());
  profiles[folder] = {{"browser", profile.title()}, {"settings", std::move(former)}};
  const auto file = files_.createBeside(path());
  file->write(writable(notes, 2) + "\n");
  file->publish();
  return true;
}

json FormerPages::read() {
  try {
    auto notes = readJson(path(), desktop_, files_);
    if (notes && isUnderstood(*notes)) return std::move(*notes);
    if (notes) desktop_.rename(path(), setAside());
  } catch (const Error&) {
    desktop_.rename(path(), setAside());
  }
  return {{"format", kFormat}, {"profiles", json::object()}};
}

// A name that nothing has.
std::string FormerPages::setAside() const {
  std::string name = path() + ".damaged";
  for (int number = 2; desktop_.kindOf(name) != PathKind::nothing; ++number) {
    name = path() + ".damaged-" + std::to_string(number);
  }
  return name;
}

}  // namespace zelvane::platform
