#include "platform/linux/linux_registry.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <nlohmann/json.hpp>

#include "platform/error.h"
#include "platform/linux/json_text.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/registry_names.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

std::string rootName(Registry::Root root) {
  switch (root) {
    case Registry::Root::classes:
      return "classes";
    case Registry::Root::currentUser:
      return "currentUser";
    case Registry::Root::localMachine:
      return "localMachine";
  }
  return {};
}

std::vector<std::string> placeOf(Registry::Root root, std::string_view path) {
  std::vector<std::string> place{rootName(root)};
  for (const std::string& name : keyNames(path)) place.push_back(toJsonText(name));
  return place;
}

bool samePlace(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  return std::ranges::equal(a, b, sameName);
}

// The object's member of that name, spelt in whatever case.
json::iterator memberOf(json& object, std::string_view name) {
  auto member = object.begin();
  while (member != object.end() && !sameName(member.key(), name)) ++member;
  return member;
}

json* memberIn(json* parent, const char* group, std::string_view name) {
  if (parent == nullptr || !parent->is_object()) return nullptr;
  const auto members = parent->find(group);
  if (members == parent->end() || !members->is_object()) return nullptr;
  const auto member = memberOf(*members, name);
  return member == members->end() || !member->is_object() ? nullptr : &*member;
}

json* keyAt(json& hive, const std::vector<std::string>& place) {
  const auto root = hive.find(place.front());
  json* key = root == hive.end() ? nullptr : &*root;
  for (std::size_t i = 1; i < place.size(); ++i) key = memberIn(key, "keys", place[i]);
  return key != nullptr && key->is_object() ? key : nullptr;
}

// Something that is there already in another form than ours is not written over.
json& objectIn(json& parent, const std::string& name) {
  const auto member = memberOf(parent, name);
  json& object = member == parent.end() ? parent[name] : *member;
  if (object.is_null()) object = json::object();
  if (!object.is_object()) throw Error(ErrorNumber::accessError);
  return object;
}

void makeKey(json& hive, const std::vector<std::string>& place) {
  json* key = &objectIn(hive, place.front());
  for (std::size_t i = 1; i < place.size(); ++i) {
    key = &objectIn(objectIn(*key, "keys"), place[i]);
  }
}

json newHive() {
  json hive = json::object();
  for (const KeyPath& key : kKeysOfANewDesktop) makeKey(hive, placeOf(key.root, key.path));
  return hive;
}

std::optional<Registry::Value> valueFrom(const json& stored) {
  const auto type = stored.find("type");
  const auto data = stored.find("data");
  if (type == stored.end() || !type->is_number_unsigned() ||
      *type > std::numeric_limits<std::uint32_t>::max() || data == stored.end() ||
      !data->is_string()) {
    return std::nullopt;
  }
  const std::string bytes = fromJsonText(data->get_ref<const std::string&>());
  Registry::Value value{Registry::Type{type->get<std::uint32_t>()}, {}};
  std::ranges::transform(bytes, std::back_inserter(value.data),
                         [](char c) { return static_cast<std::byte>(c); });
  return value;
}

std::string textFrom(std::span<const std::byte> data) {
  std::string bytes(data.size(), '\0');
  std::ranges::transform(data, bytes.begin(),
                         [](std::byte byte) { return std::to_integer<char>(byte); });
  return toJsonText(bytes);
}

}  // namespace

LinuxRegistry::LinuxRegistry(const Environment& environment)
    : file_(PrivateFile(environment.configHome + "/zelvane", "registry.json"), newHive()) {}

std::optional<std::string> LinuxRegistry::check() {
  try {
    const auto kept = file_.setAsideIfDamaged();
    file_.read();
    if (!kept) return std::nullopt;
    return "The registry file is damaged, or a newer version of the program wrote it. It is kept "
           "as "
           "\"" +
           *kept + "\"; a new one takes its place.";
  } catch (const Error& error) {
    return "The registry file cannot be read. " + error.text();
  }
}

// One that cannot be read has nothing in it; `check` has told the user.
json LinuxRegistry::hive() const {
  try {
    return file_.read();
  } catch (const Error&) {
    return json::object();
  }
}

Registry::Result LinuxRegistry::change(const std::function<Result(json&)>& change) {
  Result result = Result::accessDenied;
  try {
    file_.update([&](json& hive) { result = change(hive); });
    return result;
  } catch (const Error&) {
    return Result::accessDenied;
  }
}

Registry::Opened LinuxRegistry::newHandle(Place place) {
  handles_.emplace(++lastKey_, Handle{std::move(place)});
  return {Result::success, lastKey_};
}

Registry::Opened LinuxRegistry::open(Root root, const std::string& path) {
  Place place = placeOf(root, path);
  json hive = this->hive();
  if (keyAt(hive, place) == nullptr) return {Result::notFound, 0};
  return newHandle(std::move(place));
}

Registry::Opened LinuxRegistry::create(Root root, const std::string& path) {
  Place place = placeOf(root, path);
  const Result result = change([&](json& hive) {
    makeKey(hive, place);
    return Result::success;
  });
  if (result != Result::success) return {result, 0};
  return newHandle(std::move(place));
}

void LinuxRegistry::close(Key key) { handles_.erase(key); }

Registry::Result LinuxRegistry::stateOf(Key key) const {
  const auto handle = handles_.find(key);
  if (handle == handles_.end()) return Result::invalidHandle;
  return handle->second.deleted ? Result::notFound : Result::success;
}

std::optional<Registry::Value> LinuxRegistry::query(Key key, const std::string& name) const {
  if (stateOf(key) != Result::success) return std::nullopt;
  json hive = this->hive();
  const json* stored = memberIn(keyAt(hive, handles_.at(key).place), "values", toJsonText(name));
  return stored == nullptr ? std::nullopt : valueFrom(*stored);
}

Registry::Result LinuxRegistry::set(Key key, const std::string& name, Type type,
                                    std::span<const std::byte> data) {
  const Result known = stateOf(key);
  if (known != Result::success) return known;
  return change([&](json& hive) {
    json* place = keyAt(hive, handles_.at(key).place);
    if (place == nullptr) return Result::notFound;
    json& value = objectIn(objectIn(*place, "values"), toJsonText(name));
    value["type"] = static_cast<std::uint32_t>(type);
    value["data"] = textFrom(data);
    return Result::success;
  });
}

Registry::Result LinuxRegistry::deleteValue(Key key, const std::string& name) {
  const Result known = stateOf(key);
  if (known != Result::success) return known;
  return change([&](json& hive) {
    json* place = keyAt(hive, handles_.at(key).place);
    if (memberIn(place, "values", toJsonText(name)) == nullptr) return Result::notFound;
    json& values = place->at("values");
    values.erase(memberOf(values, toJsonText(name)));
    return Result::success;
  });
}

Registry::Result LinuxRegistry::deleteKey(Root root, const std::string& path) {
  Place place = placeOf(root, path);
  const Result result = change([&](json& hive) {
    const json* key = keyAt(hive, place);
    if (key == nullptr) return Result::notFound;
    const auto below = key->find("keys");
    const bool hasKeys = below != key->end() && !below->empty();
    if (hasKeys || place.size() == 1) return Result::accessDenied;
    json& siblings = keyAt(hive, {place.begin(), place.end() - 1})->at("keys");
    siblings.erase(memberOf(siblings, place.back()));
    return Result::success;
  });
  if (result == Result::success) {
    for (auto& [key, handle] : handles_) {
      handle.deleted = handle.deleted || samePlace(handle.place, place);
    }
  }
  return result;
}

}  // namespace zelvane::platform
