// The user's folders on a Linux desktop.
#pragma once

#include "platform/linux/environment.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// Of the special folders a desktop itself has only the documents. Histories, caches, cookies and
// favorites are the browsers'; they and the recent documents are put together from several places
// (see shared/live_folders.h).
class LinuxSpecialFolders : public SpecialFolders {
 public:
  // `usualTemporary` is where temporary files are when the environment names no better place.
  explicit LinuxSpecialFolders(Environment environment, std::string usualTemporary = "/tmp");

  std::optional<std::string> path(SpecialFolder folder) const override;

  // $TMPDIR, or the usual place where that is no folder or holds the user's home.
  std::optional<std::string> temporaryPath() const override;

 private:
  std::optional<std::string> documents() const;
  bool isUsable(const std::string& path) const;

  Environment environment_;
  std::string usualTemporary_;
};

}  // namespace zelvane::platform
