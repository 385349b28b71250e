#include "platform/linux/private_json_file.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

constexpr int kFormat = 1;
// Reading and writing recurse into a file that anybody may have written.
constexpr int kDeepest = 200;

std::optional<json> understood(const std::string& content, const json& first) {
  bool tooDeep = false;
  const auto notTooDeep = [&tooDeep](int depth, json::parse_event_t, const json&) {
    tooDeep = tooDeep || depth > kDeepest;
    return !tooDeep;
  };
  json object = json::parse(content, notTooDeep, /*allow_exceptions=*/false);
  if (tooDeep || !object.is_object()) return std::nullopt;
  const auto format = object.find("format");
  if (format == object.end() || !format->is_number_unsigned() || *format > kFormat) {
    return std::nullopt;
  }
  for (const auto& [name, expected] : first.items()) {
    const auto member = object.find(name);
    if (member != object.end() && expected.is_object() && !member->is_object()) return std::nullopt;
  }
  return object;
}

}  // namespace

PrivateJsonFile::PrivateJsonFile(PrivateFile file, json first)
    : file_(std::move(file)), first_(std::make_unique<json>(std::move(first))) {
  (*first_)["format"] = kFormat;
}

PrivateJsonFile::~PrivateJsonFile() = default;

json PrivateJsonFile::parsed(const std::optional<std::string>& content) const {
  if (!content) return *first_;
  auto object = understood(*content, *first_);
  if (!object) {
    throw Error(ErrorNumber::accessError, "\"" + file_.path() + "\" cannot be understood.");
  }
  return *std::move(object);
}

json PrivateJsonFile::read() const { return parsed(file_.read()); }

void PrivateJsonFile::update(const std::function<void(json&)>& change) {
  file_.update([&](const std::optional<std::string>& content) -> std::optional<std::string> {
    const json before = parsed(content);
    json object = before;
    change(object);
    if (object == before) return std::nullopt;
    return object.dump(2) + "\n";
  });
}

std::optional<std::string> PrivateJsonFile::setAsideIfDamaged() {
  return file_.setAsideUnless(
      [this](const std::string& content) { return understood(content, *first_).has_value(); });
}

}  // namespace zelvane::platform
