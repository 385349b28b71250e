// The whole program without a window, on a disk that may be thrown away.
#pragma once

#include "core/startup_entry.h"
#include "platform/left_traces.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/data_folder.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_identity.h"
#include "platform/linux/linux_ledger.h"
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
#include "platform/memory/memory_machine.h"
#include "platform/memory/memory_notifications.h"
#include "platform/memory/memory_process_end.h"
#include "platform/memory/memory_programs.h"
#include "platform/memory/memory_sound.h"
#include "platform/memory/memory_tray.h"
#include "platform/memory/memory_window.h"
#include "platform/shared/live_folders.h"
#include "platform/shared/live_registry.h"
#include "tests/support/program_without_window.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {

// What lies on the disk is real, put together as the real program does; what the user sees, and
// time, are in memory. The bin knows no volume but the home: its table of mounts is an empty file.
class HeadlessDesktop {
 public:
  explicit HeadlessDesktop(const ThrowAwayFolder& folder)
      : environment(environmentIn(folder)),
        plainFolders(environment, environment.tmpDir),
        recycleBin(environment, folder.write("no mounts", "")) {
    platform::refillDataFolder(identity.dataFolder());
  }

  const platform::Environment environment;
  platform::LinuxIdentity identity{environment};
  platform::LinuxSettings settings{environment};
  platform::LinuxRegistry hive{environment};
  platform::Ledger ledger = platform::linuxLedger(environment);
  platform::AutostartEntry autostart{environment, identity, ledger};
  platform::LiveRegistry registry{hive,
                                  {},
                                  {{.path = core::Registry::kRunKey,
                                    .name = identity.version().title,
                                    .beforeSet = [this] { autostart.write(); },
                                    .afterDelete = [this] { autostart.erase(); }}}};
  platform::LinuxProfileFile winIni{environment};
  platform::LinuxSpecialFolders plainFolders;
  platform::LinuxFolderTree plainTree{{}, plainFolders};
  platform::RecentlyUsed recentlyUsed{environment};
  platform::LiveFolders folders{plainFolders, plainTree, {recentlyUsed}};
  const platform::SpecialFolders& specialFolders = folders;
  platform::FolderTree& folderTree = folders;
  platform::LinuxFiles files;
  platform::LinuxRecycleBin recycleBin;
  platform::LinuxSingleInstance instance{environment};
  platform::MemoryMachine machine;
  platform::MemoryClock clock;
  platform::MemoryClipboard clipboard;
  platform::MemoryDialogs dialogs;
  platform::MemoryWindow window;
  platform::MemoryEventPump pump;
  platform::MemoryProcessEnd process;
  platform::MemoryNotifications notifications;
  platform::MemorySound sound;
  platform::MemoryPrograms programs;
  platform::MemoryTray tray;
  platform::LeftTraces leftTraces;

  platform::Desktop ports() { return platform::portsOf(*this); }
};

using HeadlessProgram = ProgramWithoutWindow<HeadlessDesktop>;

}  // namespace zelvane::test
