// The whole program without a window, on a disk that may be thrown away.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_identity.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/linux_recycle_bin.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/linux_settings.h"
#include "platform/linux/linux_single_instance.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/linux/recently_used.h"
#include "platform/memory/memory_clipboard.h"
#include "platform/memory/memory_clock.h"
#include "platform/memory/memory_dialogs.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/memory/memory_process_end.h"
#include "platform/memory/memory_window.h"
#include "platform/shared/live_folders.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {

// What lies on the disk is real, put together as the real program does; what the user sees, and
// time, are in memory. The bin knows no volume but the home: its table of mounts is an empty file.
class HeadlessDesktop {
 public:
  explicit HeadlessDesktop(const ThrowAwayFolder& folder)
      : environment(environmentIn(folder)),
        plainFolders(environment, environment.tmpDir),
        recycleBin(environment, folder.write("no mounts", "")) {}

  const platform::Environment environment;
  platform::LinuxIdentity identity{environment};
  platform::LinuxSettings settings{environment};
  platform::LinuxRegistry registry{environment};
  platform::LinuxProfileFile winIni{environment};
  platform::LinuxSpecialFolders plainFolders;
  platform::LinuxFolderTree plainTree;
  platform::RecentlyUsed recentlyUsed{environment};
  platform::LiveFolders folders{plainFolders, plainTree, {recentlyUsed}};
  platform::LinuxFiles files;
  platform::LinuxRecycleBin recycleBin;
  platform::LinuxSingleInstance instance{environment};
  platform::MemoryClock clock;
  platform::MemoryClipboard clipboard;
  platform::MemoryDialogs dialogs;
  platform::MemoryWindow window;
  platform::MemoryEventPump pump;
  platform::MemoryProcessEnd process;

  platform::Desktop ports() {
    return {.identity = identity,
            .clock = clock,
            .settings = settings,
            .registry = registry,
            .winIni = winIni,
            .specialFolders = folders,
            .folderTree = folders,
            .files = files,
            .recycleBin = recycleBin,
            .clipboard = clipboard,
            .dialogs = dialogs,
            .window = window,
            .pump = pump,
            .instance = instance,
            .process = process};
  }
};

// One run of the program, from its start to its exit.
class HeadlessProgram {
 public:
  // The folder outlives it, and outlasts it for the next run.
  explicit HeadlessProgram(const ThrowAwayFolder& folder) : desktop(folder) {}

  HeadlessDesktop desktop;
  main_window::frmMain window{desktop.ports()};

  // What a user does.
  void start() { main_window::GenFunc::Main(desktop.ports(), window); }
  void clickOption(std::size_t index) { window.cleanerPage.chkSettings[index].click(); }
  void clean() {
    window.cleanerPage.cmdBasicClean.click();
    window.schedulePage.tmrMakeScehduleEnable.tick();  // a second later
  }
  void exit() {
    try {
      window.mainPage.cmdClose.click();
    } catch (const platform::ProcessEnded&) {
      // The test goes on.
    }
  }

  // What the user sees: the texts of all boxes so far, the status line, the account of the latest
  // run.
  std::vector<std::string> told() const {
    std::vector<std::string> texts;
    std::ranges::transform(desktop.dialogs.boxes(), std::back_inserter(texts),
                           &platform::MessageBox::text);
    return texts;
  }
  const std::string& status() const { return window.mainPage.lblStatus.caption(); }
  std::string account() const { return window.cleanerPage.rtfMessage.text(); }
  bool hasEnded() const { return desktop.process.ended(); }
};

}  // namespace zelvane::test
