// What of a bed for browsers differs from desktop to desktop.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/folder_tree.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/special_folders.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// A home in a throw-away folder and the desktop's own ways in it. Paths have "/" between their
// parts.
class BedDesktop {
 public:
  virtual ~BedDesktop() = default;

  virtual const platform::BrowserDesktop& browsers() const = 0;
  virtual platform::FolderTree& plainTree() = 0;
  virtual platform::FolderTree& wholeTree() = 0;  // lists hidden files
  virtual platform::Files& files() = 0;
  virtual const platform::SpecialFolders& plainFolders() const = 0;

  // Where a browser of each family that is installed as usual has its profiles, and their caches.
  virtual std::string firefoxRoot() const = 0;
  virtual std::string firefoxCache() const = 0;
  virtual std::string chromiumRoot() const = 0;
  virtual std::string chromiumCache() const = 0;
  // Another place for profiles of Firefox, or of one who has the same.
  virtual std::string otherFirefoxRoot() const = 0;

  // What the patterns begin with that stand for ways of installing on this desktop.
  virtual std::vector<std::string> startsOfInstallations() const = 0;

  virtual void makeLink(const std::string& path, const std::string& target) const = 0;
};

// The desktop for which this program is built.
std::unique_ptr<BedDesktop> bedDesktop(const ThrowAwayFolder& folder);

}  // namespace zelvane::test
