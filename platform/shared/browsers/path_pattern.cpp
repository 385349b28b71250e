#include "platform/shared/browsers/path_pattern.h"

#include <algorithm>
#include <iterator>

namespace zelvane::platform {
namespace {

// A "." behind it is one step through a link, where a system has links of that kind.
bool isFolderOnTheWay(const BrowserDesktop& desktop, const std::string& path) {
  const bool isSnapsLink = path.ends_with("/current");
  return desktop.kindOf(isSnapsLink ? path + "/." : path) == PathKind::folder;
}

std::vector<Match> step(const BrowserDesktop& desktop, const Match& from, std::string_view name) {
  std::vector<Match> found;
  if (name.find('*') == std::string_view::npos) {
    const std::string path = from.path + "/" + std::string(name);
    if (desktop.kindOf(path) != PathKind::nothing) found.push_back({path, from.parts});
    return found;
  }
  for (const std::string& entry : desktop.namesIn(from.path)) {
    const std::optional<std::string> part = partFor(name, entry);
    if (!part) continue;
    found.push_back({from.path + "/" + entry, from.parts});
    found.back().parts.push_back(*part);
  }
  std::ranges::sort(found, {}, &Match::path);
  return found;
}

// "{home}/a" is the folder "home" and "a".
struct Split {
  std::string_view folder;
  std::string_view below;
};
Split split(std::string_view pattern) {
  const std::size_t end = pattern.find('}');
  return {pattern.substr(1, end - 1), pattern.substr(end + 2)};
}

}  // namespace

std::optional<std::string> partFor(std::string_view pattern, std::string_view name) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) {
    return pattern == name ? std::optional<std::string>("") : std::nullopt;
  }
  const std::string_view before = pattern.substr(0, star);
  const std::string_view after = pattern.substr(star + 1);
  const bool fits = name.size() >= before.size() + after.size() && name.starts_with(before) &&
                    name.ends_with(after) && !(before.empty() && name.starts_with('.'));
  if (!fits) return std::nullopt;
  return std::string(name.substr(before.size(), name.size() - before.size() - after.size()));
}

PathKind kindBelow(const BrowserDesktop& desktop, const std::string& start, std::string_view path) {
  for (std::size_t end = path.find('/'); end != path.npos; end = path.find('/', end + 1)) {
    const PathKind kind = desktop.kindOf(start + "/" + std::string(path.substr(0, end)));
    if (kind != PathKind::folder) return kind == PathKind::nothing ? kind : PathKind::other;
  }
  return desktop.kindOf(start + "/" + std::string(path));
}

std::vector<Match> matches(const BrowserDesktop& desktop, const std::string& start,
                           std::string_view pattern) {
  std::vector<Match> found = {{start, {}}};
  while (!pattern.empty()) {
    const std::size_t slash = std::min(pattern.find('/'), pattern.size());
    const std::string_view name = pattern.substr(0, slash);
    pattern.remove_prefix(std::min(slash + 1, pattern.size()));
    std::vector<Match> next;
    for (const Match& match : found) {
      if (isFolderOnTheWay(desktop, match.path))
        std::ranges::move(step(desktop, match, name), std::back_inserter(next));
    }
    found = std::move(next);
  }
  return found;
}

std::vector<Match> matches(const BrowserDesktop& desktop, std::string_view pattern) {
  const auto [folder, below] = split(pattern);
  const auto start = desktop.folders().find(folder);
  return start == desktop.folders().end() ? std::vector<Match>()
                                          : matches(desktop, start->second, below);
}

std::string filledIn(const UserFolders& folders, std::string_view pattern,
                     const std::vector<std::string>& parts) {
  if (pattern.empty()) return "";
  const auto [folder, below] = split(pattern);
  const auto start = folders.find(folder);
  if (start == folders.end()) return "";
  std::string path = start->second + "/";
  auto part = parts.begin();
  for (const char letter : below) {
    if (letter == '*' && part != parts.end()) {
      path += *part++;
    } else {
      path += letter;
    }
  }
  return path;
}

}  // namespace zelvane::platform
