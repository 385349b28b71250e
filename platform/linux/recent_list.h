// One file that lists recently used documents.
#pragma once

#include <string>

#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// A document in XBEL, the bookmark format of the desktops. It holds something when it has a
// bookmark or cannot be understood. Erasing replaces it by a list without any, in one step.
class RecentList : public LiveStore {
 public:
  explicit RecentList(std::string path) : path_(std::move(path)) {}

  bool holdsAnything() const override;

  // Also throws when a program has it open, and when a link is in its place: the file that a link
  // leads to lies somewhere else for a reason that is not known here.
  void erase() override;

 private:
  std::string path_;
};

// A left-over copy of a list, or one in a form that no program writes any more. It is deleted.
class RecentListCopy : public LiveStore {
 public:
  explicit RecentListCopy(std::string path) : path_(std::move(path)) {}

  bool holdsAnything() const override;
  void erase() override;  // throws like the list's

 private:
  std::string path_;
};

}  // namespace zelvane::platform
