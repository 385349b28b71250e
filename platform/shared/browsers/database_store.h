// The traces of one kind in a database of a browser.
#pragma once

#include <functional>
#include <string>

#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/rules.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

class Database;

// Rows are erased, not the file: bookmarks may lie beside visits. All of it or nothing is done, and
// the file is written anew, so that no byte of what went stays in it or beside it.
class DatabaseStore : public LiveStore {
 public:
  // Is told, when the rest is done, what was left because nothing is known of it.
  using Leaving = std::function<void(const std::string& what)>;

  // `profile` is the folder in which its files are. What is borrowed outlives it.
  DatabaseStore(std::string profile, const DatabaseRule& rule, const BrowserDesktop& desktop,
                Files& files, Leaving leaving);

  // True also for a file that cannot be understood: it may hold anything.
  bool holdsAnything() const override;

  // Throws, and leaves the file as it is, where it is in use, damaged, or of a form that is not
  // known.
  void erase() override;

 private:
  void eraseMarked();
  std::string pathOfFile() const;
  void namePages(const Database& database) const;

  // A file beside it, there while rows are gone and their bytes may not be, so that a kill between
  // the two is made up for by the next run.
  std::string mark() const { return pathOfFile() + ".zelvane"; }

  std::string profile_;
  const DatabaseRule& rule_;
  const BrowserDesktop& desktop_;
  Files& files_;
  Leaving leaving_;
};

}  // namespace zelvane::platform
