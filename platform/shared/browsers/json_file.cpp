#include "platform/shared/browsers/json_file.h"

#include <string_view>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLargest = std::uint64_t{64} << 20U;
constexpr int kDeepest = 200;  // the browsers themselves read none that is deeper

// Asked before it is read, because what is read is also written, compared and copied level by
// level.
bool isTooDeep(std::string_view text) {
  int depth = 0;
  bool isInText = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '"') isInText = !isInText;
    if (isInText) {
      if (c == '\\') ++at;
    } else if (c == '{' || c == '[') {
      if (++depth > kDeepest) return true;
    } else if (c == '}' || c == ']') {
      --depth;
    }
  }
  return false;
}

}  // namespace

std::optional<nlohmann::json> readJson(const std::string& path, const BrowserDesktop& desktop,
                                       const Files& files) {
  const PathKind kind = desktop.kindOf(path);
  if (kind == PathKind::nothing) return std::nullopt;
  if (kind != PathKind::file) throw Error(ErrorNumber::accessError, path);
  const std::string text = files.readWhole(path, kLargest);
  nlohmann::json value = isTooDeep(text) ? nlohmann::json(nlohmann::json::value_t::discarded)
                                         : nlohmann::json::parse(text, nullptr, false);
  if (value.is_discarded()) throw Error(ErrorNumber::typeMismatch, path + " is no JSON");
  return value;
}

}  // namespace zelvane::platform
