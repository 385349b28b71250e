// What about browsers differs from desktop to desktop.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zelvane::platform {

struct Profile;

// Where the folders are of which the table of browsers speaks: "home", "config", "cache",
// "roaming", "local". A desktop has some of them. Without closing separators.
using UserFolders = std::map<std::string, std::string, std::less<>>;

// What has a path. A link is itself, and neither a file nor a folder, whatever it leads to.
enum class PathKind { nothing, file, folder, other };

class BrowserDesktop {
 public:
  BrowserDesktop() = default;
  BrowserDesktop(const BrowserDesktop&) = delete;
  BrowserDesktop& operator=(const BrowserDesktop&) = delete;
  virtual ~BrowserDesktop() = default;

  virtual const UserFolders& folders() const = 0;

  // The folder's path with no link in it, "/" between its parts; nothing where it is no folder, a
  // link itself, not this user's own, or holds the user's home.
  virtual std::optional<std::string> ownFolder(const std::string& path) const = 0;

  // What cannot be told is `other`, which nobody touches.
  virtual PathKind kindOf(const std::string& path) const = 0;

  // The names in a folder, hidden ones too, in any order; none where it cannot be listed.
  virtual std::vector<std::string> namesIn(const std::string& folder) const = 0;

  // Whether a browser runs on this profile, as far as its own lock and the files that programs of
  // this user hold open can tell. What cannot be told counts as open.
  virtual bool isOpen(const Profile& profile) const = 0;

  // The folder `fresh` takes the place of `path`; what was there ends as `fresh` or as `aside`,
  // which nothing was before. All three lie beside each other. Durable, and one step where the
  // system has such a one; elsewhere a kill may leave nothing at `path`, and what was there at
  // `aside`. Throws, and `path` is what it was, where the system refuses.
  virtual void putInPlace(const std::string& fresh, const std::string& path,
                          const std::string& aside) const = 0;

  // Gives a folder or a file a name beside it, which nothing has; durable. Throws where the system
  // refuses.
  virtual void rename(const std::string& from, const std::string& to) const = 0;

  // Makes the program's own data folder where it may be missing, for its user alone. Throws where
  // it is not there then.
  virtual void provideFolder(const std::string& path) const = 0;
};

}  // namespace zelvane::platform
