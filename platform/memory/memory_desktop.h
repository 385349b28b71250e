// A whole desktop in memory: the one on which the program is tested without any window.
#pragma once

#include "platform/desktop.h"
#include "platform/left_traces.h"
#include "platform/memory/memory_clipboard.h"
#include "platform/memory/memory_clock.h"
#include "platform/memory/memory_dialogs.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/memory/memory_file_system.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_folder_tree.h"
#include "platform/memory/memory_identity.h"
#include "platform/memory/memory_machine.h"
#include "platform/memory/memory_notifications.h"
#include "platform/memory/memory_process_end.h"
#include "platform/memory/memory_profile_file.h"
#include "platform/memory/memory_programs.h"
#include "platform/memory/memory_recycle_bin.h"
#include "platform/memory/memory_registry.h"
#include "platform/memory/memory_settings.h"
#include "platform/memory/memory_single_instance.h"
#include "platform/memory/memory_sound.h"
#include "platform/memory/memory_special_folders.h"
#include "platform/memory/memory_tray.h"
#include "platform/memory/memory_window.h"

namespace zelvane::platform {

// Each port is a small working one, not a script of expected calls. A test sets up the world,
//
//     MemoryDesktop desktop;
//     desktop.clock.set({2026y / 11 / 21, 10h + 45min});
//     desktop.settings.put("PopupKiller", "IsActive", "0");
//     desktop.fileSystem.addFile("/home/user/Recent/letter.txt");
//
// hands `desktop.ports()` to the program, and looks at what became of that world:
//
//     EXPECT_EQ(desktop.dialogs.lastText(), "Define Time");
//     EXPECT_EQ(desktop.settings.find("Schedule", "RunOn"), std::nullopt);
//     EXPECT_FALSE(desktop.fileSystem.has("/home/user/Recent/letter.txt"));
struct MemoryDesktop {
  // The program is installed: no sound was chosen yet.
  MemoryDesktop() { fileSystem.addFile(identity.dataFolder() + "/wavpath.txt", "\r\n"); }

  MemoryIdentity identity;
  MemoryMachine machine;
  MemoryClock clock;
  MemorySettings settings;
  MemoryRegistry registry;
  MemoryProfileFile winIni;
  MemoryFileSystem fileSystem;  // what the next three show and change
  MemorySpecialFolders specialFolders{fileSystem};
  MemoryFolderTree folderTree{fileSystem};
  MemoryFiles files{fileSystem};
  MemoryRecycleBin recycleBin;
  MemoryClipboard clipboard;
  MemoryDialogs dialogs;
  MemoryWindow window;
  MemoryEventPump pump;
  MemorySingleInstance instance;
  MemoryProcessEnd process;
  MemoryNotifications notifications;
  MemoryTray tray;
  LeftTraces leftTraces;
  MemorySound sound;
  MemoryPrograms programs;

  // They live as long as this desktop.
  Desktop ports() { return portsOf(*this); }
};

}  // namespace zelvane::platform
