#include "platform/linux/environment.h"

#include <cstdlib>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelvane::platform {
namespace {

std::string absolutePath(const char* variable, const std::string& usual) {
  const char* value = std::getenv(variable);
  std::string path = value != nullptr && *value == '/' ? value : usual;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::string homeInUserDatabase() {
  const passwd* user = getpwuid(geteuid());
  return user != nullptr && user->pw_dir[0] == '/' ? user->pw_dir : "/";
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
  return environment;
}

}  // namespace zelvane::platform
