// A desktop in memory whose ports fail when they are told to.
#pragma once

#include "platform/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/faulty_clipboard.h"
#include "platform/memory/faulty_files.h"
#include "platform/memory/faulty_folder_tree.h"
#include "platform/memory/faulty_profile_file.h"
#include "platform/memory/faulty_programs.h"
#include "platform/memory/faulty_recycle_bin.h"
#include "platform/memory/faulty_registry.h"
#include "platform/memory/faulty_settings.h"
#include "platform/memory/faulty_special_folders.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::platform {

// A test sets up and looks at the world as it does with a `MemoryDesktop`, and says which call of
// the program fails:
//
//     FaultyDesktop desktop;
//     desktop.memory.settings.put("HomePage", "StartPage", "https://mine.example/");
//     frmMain window(desktop.ports());
//     desktop.faults.failCall(7);
//
// A first run without faults tells how many calls there are to fail.
struct FaultyDesktop {
  MemoryDesktop memory;
  Faults faults;

  FaultySettings settings{memory.settings, faults};
  FaultyRegistry registry{memory.registry, faults};
  FaultyProfileFile winIni{memory.winIni, faults};
  FaultySpecialFolders specialFolders{memory.specialFolders, faults};
  FaultyFolderTree folderTree{memory.folderTree, faults};
  FaultyFiles files{memory.files, faults};
  FaultyRecycleBin recycleBin{memory.recycleBin, faults};
  FaultyClipboard clipboard{memory.clipboard, faults};
  FaultyPrograms programs{memory.programs, faults};

  // They live as long as this desktop.
  Desktop ports() {
    return {.identity = memory.identity,
            .machine = memory.machine,
            .clock = memory.clock,
            .settings = settings,
            .registry = registry,
            .winIni = winIni,
            .specialFolders = specialFolders,
            .folderTree = folderTree,
            .files = files,
            .recycleBin = recycleBin,
            .clipboard = clipboard,
            .dialogs = memory.dialogs,
            .window = memory.window,
            .pump = memory.pump,
            .instance = memory.instance,
            .process = memory.process,
            .notifications = memory.notifications,
            .tray = memory.tray,
            .leftTraces = memory.leftTraces,
            .sound = memory.sound,
            .programs = programs};
  }
};

}  // namespace zelvane::platform
