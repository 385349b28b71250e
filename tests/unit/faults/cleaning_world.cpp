#include "tests/unit/faults/cleaning_world.h"

#include "tests/unit/faults/facts.h"

namespace zelvane::faults {

namespace {

using platform::SpecialFolder;
using Root = platform::Registry::Root;

void plantSmall(platform::MemoryFileSystem& files, const std::string& root) {
  files.addFile(root + "/one/two/deepest.txt");
  files.addFile(root + "/one/.secret", "content", {.hidden = true});
  files.addFile(root + "/busy/held.txt", "content", {.inUse = true});
  files.addFile(root + "/last.txt");
}

void plant(platform::MemoryFileSystem& files, const std::string& root) {
  files.addFile(root + "/one/two/three/deepest.txt");
  files.addFile(root + "/one/two/deeper.txt", "content", {.readOnly = true});
  files.addFile(root + "/kept/within/.secret", "content", {.hidden = true});
  files.addFile(root + "/kept/within/shown.txt");
  files.addFile(root + "/busy/held.txt", "content", {.inUse = true});
  files.addFile(root + "/busy/free.txt");
  files.addFile(root + "/last.txt");
  files.addLink(root + "/to music", "/home/user/Music");
}

}  // namespace

std::vector<std::string> CleaningWorld::roots() const {
  std::vector<std::string> paths;
  for (const auto& [folder, path] : folders) {
    paths.push_back(path);
  }
  if (!temporary.empty()) {
    paths.push_back(temporary.substr(0, temporary.size() - 1));
  }
  return paths;
}

CleaningWorld wholeWorld() {
  return {.folders = {{SpecialFolder::personal, "/home/user/Documents"},
                      {SpecialFolder::favorites, "/home/user/Favorites"},
                      {SpecialFolder::recent, "/home/user/Recent"},
                      {SpecialFolder::internetCache, "/home/user/Browser/Cache"},
                      {SpecialFolder::cookies, "/home/user/Browser/Cookies"},
                      {SpecialFolder::history, "/home/user/Browser/History"}},
          .temporary = "/tmp/",
          .small = false};
}

CleaningWorld smallWorld() {
  return {.folders = {{SpecialFolder::personal, "/home/user/Documents"}},
          .temporary = "",
          .small = true};
}

void furnish(platform::MemoryDesktop& desktop, const CleaningWorld& world) {
  for (const auto& [folder, path] : world.folders) {
    desktop.specialFolders.set(folder, path);
  }
  desktop.specialFolders.setTemporary(world.temporary);
  for (const std::string& root : world.roots()) {
    (world.small ? plantSmall : plant)(desktop.fileSystem, root);
  }
  desktop.fileSystem.addFile("/home/user/Music/song.ogg");
  desktop.fileSystem.addFile("/home/user/Documents.old/letter.txt");
  desktop.fileSystem.addFile("/home/user/Browser/passwords");
  desktop.fileSystem.addFile("/home/letter.txt");

  desktop.recycleBin.put({.name = "thrown away.txt", .bytes = 3});
  desktop.recycleBin.put({.name = "thrown away too.txt", .bytes = 4});
  desktop.clipboard.content = "copied last";
  desktop.registry.put(Root::currentUser, kTypedUrls, "url1", "https://typed.example/");
  desktop.registry.put(Root::currentUser, kRunMru, "a", "calc");
}

}  // namespace zelvane::faults
