#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

// Any that has subfolders with files would do. It is the lower layer of an overlay, whose upper one
// is the world's own: only so does a plain user get files of somebody else's into his folder.
constexpr const char* kSystemFolder = "/etc/apt";
const std::vector<std::string> kLayers = {"upper*", "work*"};

// From a folder of the user's own he may take what belongs to others, were it an empty folder; from
// theirs he may take nothing.
void keepFoldersOfOthers(ZooWorld& world) {
  bool any = false;
  for (const auto& entry : std::filesystem::directory_iterator(world.path("root"))) {
    struct stat status {};
    if (stat(entry.path().c_str(), &status) == 0 && status.st_uid != geteuid() &&
        S_ISDIR(status.st_mode) && !std::filesystem::is_empty(entry.path())) {
      world.keep("root/" + entry.path().filename().string());
      any = true;
    }
  }
  if (!any) throw CannotBuild(std::string("the folders in ") + kSystemFolder + " are this user's");
}

}  // namespace

std::vector<ZooCase> mountCases() {
  return {
      {.name = "MountedAgainFolder",
       .title = "a folder outside, of the same volume, mounted inside (bind mount)",
       .stays = {"root/plain/again"},
       .build = [](ZooWorld& world) { world.mountAgain("outside/folder", "root/plain/again"); },
       .needs = Needs::mounts},
      {.name = "MountedAgainFile",
       .title = "a single file outside mounted over a file inside",
       .stays = {"root/plain/again"},
       .build = [](ZooWorld& world) { world.mountAgain("outside/file", "root/plain/again"); },
       .needs = Needs::mounts},
      {.name = "MountedAgainRootInItself",
       .title = "the folder to erase mounted again inside itself",
       .stays = {"root/plain/again"},
       .build = [](ZooWorld& world) { world.mountAgain("root", "root/plain/again"); },
       .needs = Needs::mounts,
       .mayStay = {"root/plain/again/*"}},
      {.name = "MountedVolume",
       .title = "another volume mounted inside",
       .stays = {"root/volume", "root/plain/volume"},
       .build =
           [](ZooWorld& world) {
             world.mountVolume("root/volume");
             world.file("root/volume/folder/file");
             world.mountVolume("root/plain/volume");
             world.file("root/plain/volume/file");
           },
       .needs = Needs::mounts},
      {.name = "MountPointAsTheRoot",
       .title = "the folder to erase is a mount point, with another volume inside",
       .stays = {"root/inner"},
       .build =
           [](ZooWorld& world) {
             world.mountVolume("root");
             world.file("root/folder/file");
             world.file("root/file");
             world.mountVolume("root/inner");
             world.file("root/inner/file");
           },
       .needs = Needs::mounts},
      {.name = "MountedReadOnly",
       .title = "the folder to erase is mounted read-only",
       .stays = {"root/plain", "root/file", "root/link"},
       .build =
           [](ZooWorld& world) {
             world.link("root/link", world.path("outside"));
             world.mountAgain("root", "root");
             world.makeReadOnly("root");
           },
       .needs = Needs::mounts},
      {.name = "MountedDevice",
       .title = "a device (`/dev/null` and `/dev/zero`, mounted over files)",
       .stays = {"root/null", "root/plain/zero"},
       .build =
           [](ZooWorld& world) {
             world.mountDevice("/dev/null", "root/null");
             world.mountDevice("/dev/zero", "root/plain/zero");
           },
       .needs = Needs::mounts},
      {.name = "MountWithFoldersOfAnotherUser",
       .title = "folders of another user, with files in them",
       .build =
           [](ZooWorld& world) {
             world.mountOver(kSystemFolder, "upper", "root");
             world.file("root/own");
             keepFoldersOfOthers(world);
           },
       .needs = Needs::mounts,
       .mayStay = kLayers},
      {.name = "MountedOverlayWithFilesInUse",
       .title = "files that programs have open or mapped, in an overlay as containers use it",
       .stays = {"root/open", "root/mapped"},
       .build =
           [](ZooWorld& world) {
             world.folder("lower");
             world.mountOver(world.path("lower"), "upper", "root");
             world.file("root/open");
             world.file("root/mapped");
             world.hold("root/open");
             world.map("root/mapped");
             world.file("root/free");
           },
       .needs = Needs::mounts,
       .mayStay = kLayers},
  };
}

}  // namespace zelvane::test
