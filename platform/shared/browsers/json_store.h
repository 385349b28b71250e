// Members of a browser's file of JSON that are erased.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/rules.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// The file is replaced in one step by one without them.
class JsonStore : public LiveStore {
 public:
  // All but `profile` outlive it.
  JsonStore(std::string profile, const JsonRule& rule, const BrowserDesktop& desktop, Files& files);

  // True also for a file that cannot be understood: it may hold anything.
  bool holdsAnything() const override;

  // Throws where the file cannot be understood or replaced; then it is as it was.
  void erase() override;

 private:
  std::string path() const;

  std::string profile_;
  const JsonRule& rule_;
  const BrowserDesktop& desktop_;
  Files& files_;
};

}  // namespace zelvane::platform
