// The whole program without a window, on a piece of a Windows disk and of its registry.
#pragma once

#include <algorithm>
#include <string>

#include "core/startup_entry.h"
#include "platform/left_traces.h"
#include "platform/memory/memory_clipboard.h"
#include "platform/memory/memory_clock.h"
#include "platform/memory/memory_dialogs.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/memory/memory_machine.h"
#include "platform/memory/memory_notifications.h"
#include "platform/memory/memory_process_end.h"
#include "platform/memory/memory_sound.h"
#include "platform/memory/memory_tray.h"
#include "platform/memory/memory_window.h"
#include "platform/shared/browsers/browser_traces.h"
#include "platform/shared/jump_list_tree.h"
#include "platform/shared/live_folders.h"
#include "platform/shared/live_registry.h"
#include "platform/shared/noted_value.h"
#include "platform/windows/explorer_history.h"
#include "platform/windows/windows_browser_desktop.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_folder_tree.h"
#include "platform/windows/windows_identity.h"
#include "platform/windows/windows_ledger.h"
#include "platform/windows/windows_profile_file.h"
#include "platform/windows/windows_programs.h"
#include "platform/windows/windows_recycle_bin.h"
#include "platform/windows/windows_registry.h"
#include "platform/windows/windows_settings.h"
#include "platform/windows/windows_single_instance.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/support/program_without_window.h"

namespace zelvane::test {

// A folder, and a key below HKEY_CURRENT_USER.
struct World {
  std::string folder;
  std::string key;
};

// The program as it runs here, and its data in the world.
class IdentityIn : public platform::WindowsIdentity {
 public:
  explicit IdentityIn(const World& world) : folder_(world.folder + "\\data") {}

  std::string dataFolder() const override { return folder_; }

 private:
  std::string folder_;
};

// What lies on the disk is real, put together as the real program does; what the user sees, and
// time, are in memory. Of the world's folders only those that exist are special ones. The recycle
// bin is the shell's own.
class HeadlessDesktop {
 public:
  explicit HeadlessDesktop(const World& world)
      : identity(world),
        settings(settingsIn(world)),
        systemRegistry(world.key),
        ledger(platform::windowsLedger(ledgerIn(world))),
        winIni(world.folder + "\\win.ini"),
        plainFolders(foldersIn(world.folder)),
        browsers(browsersIn(world.folder)),
        instance(nameOf(world)) {}

  static std::string settingsIn(const World& world) { return world.key + "\\Settings"; }
  static std::string ledgerIn(const World& world) { return world.folder + "\\own"; }

  IdentityIn identity;
  platform::WindowsSettings settings;
  platform::WindowsRegistry systemRegistry;
  platform::Ledger ledger;
  platform::LiveRegistry startupList{
      systemRegistry,
      {},
      {platform::notedValue(ledger, core::Registry::kRunKey, identity.version().title)}};
  platform::WindowsProfileFile winIni;
  platform::WindowsSpecialFolders plainFolders;
  platform::WindowsFolderTree plainTree;
  platform::WindowsFiles files;
  platform::WindowsBrowserDesktop browsers;
  platform::WindowsFolderTree wholeTree{
      {.way = platform::WindowsFolderTree::usualWay(), .listsHiddenFiles = true}};
  platform::LeftTraces leftTraces;
  platform::BrowserTraces browserTraces{browsers, wholeTree, files, leftTraces};
  platform::ExplorerHistory explorer{systemRegistry};
  platform::LiveRegistry registry{startupList,
                                  {{R"(Software\Microsoft\Internet Explorer\TypedURLs)",
                                    [this] {
                                      explorer.eraseTyped();
                                      browserTraces.eraseTyped();
                                    }},
                                   {R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)",
                                    [this] { explorer.eraseRun(); }}}};
  platform::JumpListTree jumpLists{plainFolders, plainTree, files};
  platform::LiveFolders folders{plainFolders, jumpLists, {browserTraces}};
  const platform::SpecialFolders& specialFolders = folders;
  platform::FolderTree& folderTree = folders;
  platform::WindowsRecycleBin recycleBin{[] { return nullptr; }};
  platform::WindowsSingleInstance instance;
  platform::MemoryMachine machine;
  platform::MemoryClock clock;
  platform::MemoryClipboard clipboard;
  platform::MemoryDialogs dialogs;
  platform::MemoryWindow window;
  platform::MemoryEventPump pump;
  platform::MemoryProcessEnd process;
  platform::MemoryNotifications notifications;
  platform::MemorySound sound;
  platform::WindowsPrograms programs{[] { return HWND(); }};
  platform::MemoryTray tray;

  platform::Desktop ports() { return platform::portsOf(*this); }

 private:
  // "special-8" are the recent documents; the number is the shell's.
  static platform::SystemFolders foldersIn(const std::string& folder) {
    return {.special =
                [folder](platform::SpecialFolder special) {
                  return folder + "\\special-" + std::to_string(static_cast<int>(special));
                },
            .temporary = [folder] { return folder + "\\temporary\\"; },
            .kept = {folder + "\\home", folder + "\\system"}};
  }

  // Below the world's home, which need not be there.
  static platform::UserFolders browsersIn(const std::string& folder) {
    return {{"home", folder + "\\home"},
            {"roaming", folder + "\\home\\roaming"},
            {"local", folder + "\\home\\local"}};
  }

  // A name that the system takes for what only one program may hold.
  static std::string nameOf(const World& world) {
    std::string name = world.key;
    std::ranges::replace(name, '\\', '-');
    return name;
  }
};

using HeadlessProgram = ProgramWithoutWindow<HeadlessDesktop>;

}  // namespace zelvane::test
