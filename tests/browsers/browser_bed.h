// A home with browsers in it, and Zelvane's way of seeing them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "cleaner/erasure.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_traces.h"
#include "platform/shared/live_folders.h"
#include "tests/browsers/bed_desktop.h"
#include "tests/browsers/fixture_database.h"
#include "tests/browsers/fixture_profiles.h"

namespace zelvane::test {

class BrowserBed {
 public:
  const ThrowAwayFolder folder;
  const std::unique_ptr<BedDesktop> own = bedDesktop(folder);
  const platform::BrowserDesktop& desktop = own->browsers();
  platform::FolderTree& plainTree = own->plainTree();
  platform::FolderTree& wholeTree = own->wholeTree();
  platform::Files& files = own->files();
  platform::LeftTraces left;
  platform::BrowserTraces traces{desktop, wholeTree, files, left};
  platform::LiveFolders folders{own->plainFolders(), plainTree, {traces}};
  platform::MemoryEventPump pump;

  const std::string home = desktop.folders().at("home");
  const std::string firefoxRoot = own->firefoxRoot();
  const std::string firefox = firefoxRoot + "/abcd.default";
  const std::string firefoxCache = own->firefoxCache() + "/abcd.default";
  const std::string chromiumRoot = own->chromiumRoot();
  const std::string chromium = chromiumRoot + "/Default";
  const std::string chromiumCache = own->chromiumCache() + "/Default";

  void installFirefox() {
    makeFirefoxProfile(firefox);
    listForFirefox(firefoxRoot, {"abcd.default"});
  }

  void installChromium() {
    makeChromiumProfile(chromium);
    listForChromium(chromiumRoot, {"Default"});
  }

  // As a run does with an option that is ticked.
  void erase(platform::SpecialFolder special) {
    const std::optional<std::string> path = folders.path(special);
    if (path) cleaner::eraseContents(folders, pump, *path);
  }

  static bool has(const std::string& path) {
    return std::filesystem::exists(std::filesystem::symlink_status(path));
  }

  // A file's whole content.
  static std::string read(const std::string& path);

  // Every file below the home that holds the text, or has it in its name.
  std::string filesWith(std::string_view text) const;
};

}  // namespace zelvane::test
