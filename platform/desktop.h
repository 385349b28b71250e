// One reference for each port: what `main` builds and hands to the program.
#pragma once

namespace zelvane::platform {

class Clipboard;
class Clock;
class Dialogs;
class EventPump;
class Files;
class FolderTree;
class Identity;
class LeftTraces;
class Machine;
class Notifications;
class ProcessEnd;
class ProfileFile;
class Programs;
class RecycleBin;
class Registry;
class SettingsBackend;
class SingleInstance;
class Sound;
class SpecialFolders;
class Tray;
class WindowCommands;

struct Desktop {
  const Identity& identity;
  const Machine& machine;
  const Clock& clock;
  SettingsBackend& settings;
  Registry& registry;
  ProfileFile& winIni;
  const SpecialFolders& specialFolders;
  FolderTree& folderTree;
  Files& files;
  RecycleBin& recycleBin;
  Clipboard& clipboard;
  Dialogs& dialogs;
  WindowCommands& window;
  EventPump& pump;
  SingleInstance& instance;
  ProcessEnd& process;
  Notifications& notifications;
  Tray& tray;
  LeftTraces& leftTraces;
  Sound& sound;
  Programs& programs;
};

// Of anything that has a tenant of each port under the port's name here. They are borrowed.
template <typename Tenants>
Desktop portsOf(Tenants& tenants) {
  return {.identity = tenants.identity,
          .machine = tenants.machine,
          .clock = tenants.clock,
          .settings = tenants.settings,
          .registry = tenants.registry,
          .winIni = tenants.winIni,
          .specialFolders = tenants.specialFolders,
          .folderTree = tenants.folderTree,
          .files = tenants.files,
          .recycleBin = tenants.recycleBin,
          .clipboard = tenants.clipboard,
          .dialogs = tenants.dialogs,
          .window = tenants.window,
          .pump = tenants.pump,
          .instance = tenants.instance,
          .process = tenants.process,
          .notifications = tenants.notifications,
          .tray = tenants.tray,
          .leftTraces = tenants.leftTraces,
          .sound = tenants.sound,
          .programs = tenants.programs};
}

}  // namespace zelvane::platform
