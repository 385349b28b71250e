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

}  // namespace zelvane::platform
