// Where ports, window and shell meet on a Windows desktop. It chooses them, and nothing else.

#include <windows.h>
#include <ole2.h>

#include "core/controls/open_boxes.h"
#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "core/startup_entry.h"
#include "platform/desktop.h"
#include "platform/left_traces.h"
#include "platform/shared/browsers/browser_settings.h"
#include "platform/shared/browsers/browser_traces.h"
#include "platform/shared/browsers/former_pages.h"
#include "platform/shared/browsers/live_browser_values.h"
#include "platform/shared/jump_list_tree.h"
#include "platform/shared/live_folders.h"
#include "platform/shared/live_registry.h"
#include "platform/shared/noted_value.h"
#include "platform/windows/explorer_history.h"
#include "platform/windows/windows_browser_desktop.h"
#include "platform/windows/windows_clock.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_folder_tree.h"
#include "platform/windows/windows_identity.h"
#include "platform/windows/windows_ledger.h"
#include "platform/windows/windows_machine.h"
#include "platform/windows/windows_process_end.h"
#include "platform/windows/windows_profile_file.h"
#include "platform/windows/windows_programs.h"
#include "platform/windows/windows_recycle_bin.h"
#include "platform/windows/windows_registry.h"
#include "platform/windows/windows_settings.h"
#include "platform/windows/windows_single_instance.h"
#include "platform/windows/windows_sound.h"
#include "platform/windows/windows_special_folders.h"
#include "ui/win32/main_window.h"
#include "ui/win32/message_loop.h"
#include "ui/win32/win32_clipboard.h"
#include "ui/win32/win32_dialogs.h"
#include "ui/win32/win32_event_pump.h"
#include "ui/win32/win32_notifications.h"
#include "ui/win32/win32_tray.h"
#include "ui/win32/win32_window_commands.h"

namespace zelvane {
namespace {

// The ports of a Windows desktop, in the order in which they stand on each other.
struct WindowsDesktop {
  explicit WindowsDesktop(controls::OpenBoxes& boxes) : dialogs(boxes) {}

  // From now on boxes and commands belong to this window.
  void attach(HWND shell) {
    owner = shell;
    dialogs.attach(shell);
    window.attach(shell);
  }

  HWND owner = nullptr;
  platform::WindowsIdentity identity;
  platform::WindowsMachine machine;
  platform::WindowsClock clock;
  platform::WindowsSettings settings;
  platform::WindowsRegistry systemRegistry;
  platform::Ledger ledger =
      platform::windowsLedger(platform::foldersOfUser()["roaming"] + "\\Zelvane");
  platform::LiveRegistry startupList{
      systemRegistry,
      {},
      {platform::notedValue(ledger, core::Registry::kRunKey, identity.version().title)}};
  platform::WindowsProfileFile winIni;
  platform::WindowsSpecialFolders plainFolders{platform::systemFolders([this] { return owner; })};
  platform::WindowsFolderTree plainTree;
  platform::WindowsFiles files;
  platform::WindowsBrowserDesktop browsers{platform::foldersOfUser()};
  platform::WindowsFolderTree wholeTree{
      {.way = platform::WindowsFolderTree::usualWay(), .listsHiddenFiles = true}};
  platform::LeftTraces leftTraces;
  platform::BrowserTraces browserTraces{browsers, wholeTree, files, leftTraces};
  win32::Win32Notifications notifications;
  platform::FormerPages formerPages{identity.dataFolder(), browsers, files};
  platform::BrowserSettings browserSettings{browsers, files, formerPages, notifications};
  platform::ExplorerHistory explorer{systemRegistry};
  platform::LiveRegistry registry{
      startupList,
      {{R"(Software\Microsoft\Internet Explorer\TypedURLs)",
        [this] {
          explorer.eraseTyped();
          browserTraces.eraseTyped();
        }},
       {R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)",
        [this] { explorer.eraseRun(); }}},
      platform::liveBrowserValues(browserSettings, platform::LiveRegistry::Answers::asWritten)};
  platform::JumpListTree jumpLists{plainFolders, plainTree, files};
  platform::LiveFolders folders{plainFolders, jumpLists, {browserTraces}};
  const platform::SpecialFolders& specialFolders = folders;
  platform::FolderTree& folderTree = folders;
  platform::WindowsRecycleBin recycleBin{[this] { return owner; }};
  platform::WindowsSingleInstance instance;
  platform::WindowsProcessEnd process;
  platform::WindowsSound sound;
  platform::WindowsPrograms programs{[this] { return owner; }};
  win32::Win32Clipboard clipboard;
  win32::Win32Dialogs dialogs;
  win32::Win32WindowCommands window;
  win32::Win32EventPump pump;
  win32::Win32Tray tray;

  platform::Desktop ports() { return platform::portsOf(*this); }
};

int run() {
  OleInitialize(nullptr);  // the shell's own dialogs need it, and what screen readers ask
  controls::OpenBoxes boxes;
  WindowsDesktop desktop(boxes);
  const platform::Desktop ports = desktop.ports();
  main_window::frmMain window(ports);
  win32::Look look;
  win32::MainWindow shell(window, boxes, look);
  desktop.attach(shell.handle());
  desktop.tray.attach(shell, window.trayMenu.mnuQuorvex);

  main_window::GenFunc::Main(ports, window);
  win32::runMessageLoop();
  return 0;
}

}  // namespace
}  // namespace zelvane

// No argument is ever read.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) { return zelvane::run(); }
