#include "platform/linux/environment.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/shared/ascii_case.h"

namespace zelvane::platform {
namespace {

std::string withoutClosingSeparators(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::string absolutePath(const char* variable, const std::string& usual) {
  const char* value = std::getenv(variable);
  return withoutClosingSeparators(value != nullptr && *value == '/' ? value : usual);
}

std::string homeInUserDatabase() {
  const passwd* user = getpwuid(geteuid());
  return user != nullptr && user->pw_dir[0] == '/' ? user->pw_dir : "/";
}

// The parts of a list that are not empty.
std::vector<std::string> listed(const char* variable, std::string_view usual) {
  const char* value = std::getenv(variable);
  std::string_view list = value != nullptr && *value != '\0' ? value : usual;
  std::vector<std::string> parts;
  while (!list.empty()) {
    const std::string_view part = list.substr(0, list.find(':'));
    list.remove_prefix(std::min(part.size() + 1, list.size()));
    if (!part.empty()) parts.emplace_back(part);
  }
  return parts;
}

std::vector<std::string> absolutePaths(const char* variable, std::string_view usual) {
  std::vector<std::string> paths = listed(variable, usual);
  std::erase_if(paths, [](const std::string& path) { return !path.starts_with('/'); });
  std::ranges::transform(paths, paths.begin(), withoutClosingSeparators);
  return paths;
}

std::vector<std::string> namesOfDesktop() {
  std::vector<std::string> names = listed("XDG_CURRENT_DESKTOP", "");
  for (std::string& name : names) std::ranges::transform(name, name.begin(), asciiLower);
  return names;
}

// Processes that were not started by the session do not have the variable. Without this they would
// not meet those that have it.
std::string usualRuntimeDir() {
  const std::string path = "/run/user/" + std::to_string(geteuid());
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) ? path : "";
}

}  // namespace

Environment Environment::ofProcess() {
  Environment environment;
  environment.home = absolutePath("HOME", homeInUserDatabase());
  const std::string home = environment.home == "/" ? "" : environment.home;
  environment.configHome = absolutePath("XDG_CONFIG_HOME", home + "/.config");
  environment.dataHome = absolutePath("XDG_DATA_HOME", home + "/.local/share");
  environment.cacheHome = absolutePath("XDG_CACHE_HOME", home + "/.cache");
  environment.runtimeDir = absolutePath("XDG_RUNTIME_DIR", usualRuntimeDir());
  environment.tmpDir = absolutePath("TMPDIR", "/tmp");
  environment.configDirs = absolutePaths("XDG_CONFIG_DIRS", "/etc/xdg");
  environment.dataDirs = absolutePaths("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
  environment.programDirs = absolutePaths("PATH", "/usr/local/bin:/usr/bin:/bin");
  environment.desktops = namesOfDesktop();
  return environment;
}

}  // namespace zelvane::platform
