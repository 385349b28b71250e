// Where ports, window and shell meet on a Linux desktop. It chooses them, and nothing else.

#include "core/controls/open_boxes.h"
#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "core/startup_entry.h"
#include "platform/desktop.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/data_folder.h"
#include "platform/linux/environment.h"
#include "platform/linux/linux_browser_desktop.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_identity.h"
#include "platform/linux/linux_ledger.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/linux_process_end.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/linux_programs.h"
#include "platform/linux/linux_recycle_bin.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/linux_settings.h"
#include "platform/linux/linux_single_instance.h"
#include "platform/linux/linux_sound.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/linux/recently_used.h"
#include "platform/linux/run_history.h"
#include "platform/shared/browsers/browser_settings.h"
#include "platform/shared/browsers/browser_traces.h"
#include "platform/shared/browsers/former_pages.h"
#include "platform/shared/browsers/live_browser_values.h"
#include "platform/shared/live_folders.h"
#include "platform/shared/live_registry.h"
#include "ui/qt/application.h"
#include "ui/qt/ending_signals.h"
#include "ui/qt/main_window.h"
#include "ui/qt/qt_clipboard.h"
#include "ui/qt/qt_dialogs.h"
#include "ui/qt/qt_event_pump.h"
#include "ui/qt/qt_notifications.h"
#include "ui/qt/qt_tray.h"
#include "ui/qt/qt_window_commands.h"

namespace zelvane {
namespace {

// The ports of a Linux desktop, in the order in which they stand on each other.
struct LinuxDesktop {
  explicit LinuxDesktop(controls::OpenBoxes& boxes) : dialogs(boxes) {}

  const platform::Environment environment = platform::Environment::ofProcess();
  platform::LinuxIdentity identity{environment};
  platform::LinuxMachine machine;
  platform::LinuxClock clock;
  platform::LinuxSettings settings{environment};
  platform::LinuxRegistry hive{environment};
  platform::Ledger ledger = platform::linuxLedger(environment);
  platform::AutostartEntry autostart{environment, identity, ledger};
  platform::LiveRegistry startupList{hive,
                                     {},
                                     {{.path = core::Registry::kRunKey,
                                       .name = identity.version().title,
                                       .beforeSet = [this] { autostart.write(); },
                                       .afterDelete = [this] { autostart.erase(); }}}};
  platform::LinuxProfileFile winIni{environment};
  platform::LinuxSpecialFolders plainFolders{environment};
  platform::LinuxFolderTree plainTree{{}, plainFolders};
  platform::RecentlyUsed recentlyUsed{environment};
  platform::LinuxFiles files;
  platform::LinuxBrowserDesktop browsers{environment};
  platform::LinuxFolderTree wholeTree{{.listsHiddenFiles = true}};
  platform::LeftTraces leftTraces;
  platform::BrowserTraces browserTraces{browsers, wholeTree, files, leftTraces};
  qt::QtNotifications notifications;
  platform::FormerPages formerPages{identity.dataFolder(), browsers, files};
  platform::BrowserSettings browserSettings{browsers, files, formerPages, notifications};
  platform::RunHistory runHistory{environment, files};
  platform::LiveRegistry registry{
      startupList,
      {{R"(Software\Microsoft\Internet Explorer\TypedURLs)",
        [this] { browserTraces.eraseTyped(); }},
       {R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)",
        [this] { runHistory.erase(); }}},
      platform::liveBrowserValues(browserSettings, platform::LiveRegistry::Answers::asItStands)};
  platform::LiveFolders folders{plainFolders, plainTree, {recentlyUsed, browserTraces}};
  const platform::SpecialFolders& specialFolders = folders;
  platform::FolderTree& folderTree = folders;
  platform::LinuxRecycleBin recycleBin{environment};
  platform::LinuxSingleInstance instance{environment};
  platform::LinuxProcessEnd process;
  platform::LinuxSound sound;
  platform::LinuxPrograms programs{environment};
  qt::QtClipboard clipboard;
  qt::QtDialogs dialogs;
  qt::QtWindowCommands window;
  qt::QtEventPump pump;
  qt::QtTray tray;

  platform::Desktop ports() { return platform::portsOf(*this); }
};

int run(char** arguments) {
  // The toolkit is given the program's name alone: no argument is ever read.
  int count = 1;
  qt::Application application(count, arguments);
  controls::OpenBoxes boxes;
  LinuxDesktop desktop(boxes);
  const platform::Desktop ports = desktop.ports();
  main_window::frmMain window(ports);
  qt::MainWindow shell(window, boxes);
  desktop.dialogs.attach(shell);
  desktop.window.attach(shell);
  desktop.tray.attach(shell, shell.trayMenu());
  const auto quit = [&] { window.mainPage.form.unload(controls::UnloadMode::windows); };
  application.whenToldToQuit(quit);
  const qt::EndingSignals endingSignals(quit);

  platform::refillDataFolder(desktop.identity.dataFolder());
  main_window::GenFunc::Main(ports, window);
  return qt::Application::exec();
}

}  // namespace
}  // namespace zelvane

int main(int, char** arguments) { return zelvane::run(arguments); }
