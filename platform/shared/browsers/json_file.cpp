#include "platform/shared/browsers/json_file.h"

#include "platform/error.h"

namespace zelvane::platform {
namespace {
constexpr std::uint64_t kLargest = std::uint64_t{64} << 20U;
}

std::optional<nlohmann::json> readJson(const std::string& path, const BrowserDesktop& desktop,
                                       const Files& files) {
  const PathKind kind = desktop.kindOf(path);
  if (kind == PathKind::nothing) return std::nullopt;
  if (kind != PathKind::file) throw Error(ErrorNumber::accessError, path);
  nlohmann::json value = nlohmann::json::parse(files.readWhole(path, kLargest), nullptr, false);
  if (value.is_discarded()) throw Error(ErrorNumber::typeMismatch, path + " is no JSON");
  return value;
}

}  // namespace zelvane::platform
