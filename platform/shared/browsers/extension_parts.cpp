#include "platform/shared/browsers/extension_parts.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>

#include "platform/shared/browsers/level_db.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

constexpr std::string_view kExtension = "chrome-extension://";
constexpr std::uint64_t kLongestIndex = std::uint64_t{1} << 20U;

bool isOfExtension(std::string_view text) { return text.find(kExtension) != text.npos; }

// The entry "RES:version\0number" says in its value whose script that is.
std::set<std::string> numbersOfExtensions(const std::string& database) {
  std::set<std::string> numbers;
  LevelDb(database, LevelDb::Open::present)
      .forEach([&](std::string_view key, std::string_view value) {
        if (key.starts_with("RES:") && isOfExtension(value)) {
          numbers.emplace(key.substr(std::min(key.find('\0'), key.size() - 1) + 1));
        }
      });
  return numbers;
}

std::string keyOfEntry(const std::string& path, const Files& files) {
  constexpr std::size_t kHead = 24;
  constexpr std::size_t kLongestKey = 32;
  const std::string head = files.open(path)->read(kHead + kLongestKey);
  if (head.size() < kHead) return "";
  std::size_t length = 0;
  for (const std::size_t at : {15U, 14U, 13U, 12U}) {
    length = length << 8U | static_cast<unsigned char>(head[at]);
  }
  return head.substr(kHead, std::min(length, kLongestKey));
}

}  // namespace

std::vector<std::string> cachesOfExtensions(const std::string& folder,
                                            const BrowserDesktop& desktop, const Files& files) {
  std::vector<std::string> names;
  for (const Match& match : matches(desktop, folder, "*/index.txt")) {
    if (isOfExtension(files.readWhole(match.path, kLongestIndex))) names.push_back(match.parts[0]);
  }
  return names;
}

std::vector<std::string> scriptsOfExtensions(const std::string& folder,
                                             const BrowserDesktop& desktop, const Files& files) {
  const std::string profilePart = folder.substr(0, folder.rfind('/'));
  if (kindBelow(desktop, profilePart, "Database/CURRENT") != PathKind::file) return {};
  const std::set<std::string> numbers = numbersOfExtensions(profilePart + "/Database");
  std::vector<std::string> names;
  for (const Match& entry : matches(desktop, folder, "*_0")) {
    if (numbers.count(keyOfEntry(entry.path, files)) == 0) continue;
    for (const char* part : {"_0", "_1", "_s"}) names.push_back(entry.parts[0] + part);
  }
  return names;
}

}  // namespace zelvane::platform
