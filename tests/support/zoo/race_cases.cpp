#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

platform::Descriptor openFolder(const std::string& path) {
  platform::Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) throw std::system_error(errno, std::generic_category(), path);
  return folder;
}

// In the order in which a walk by inodes comes by them.
std::vector<std::string> byInode(std::vector<std::string> paths) {
  std::ranges::sort(paths, {}, [](const std::string& path) {
    struct stat status {};
    stat(path.c_str(), &status);
    return status.st_ino;
  });
  return paths;
}

// Swaps "real" and "link" in each of the folders, as fast as it can. The folder's first and last
// file say when the erasure has gone on to the next one, in whatever order it goes.
void swapOneAfterAnother(const std::vector<std::string>& folders, const Say& say) {
  say("begins");
  for (const std::string& path : folders) {
    const platform::Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    while (faccessat(folder.get(), "last", F_OK, 0) == 0 ||
           faccessat(folder.get(), "first", F_OK, 0) == 0) {
      swapNames(folder.get(), "real", "link");
    }
  }
}

std::string numbered(const std::string& name, int number) { return name + std::to_string(number); }

// Each pair has a target of its own outside, so that each mistake is counted.
ZooCase swapped(const std::string& name, const std::string& what, int pairs, bool folders) {
  ZooCase zooCase;
  zooCase.name = name;
  zooCase.title = what + " swapped for a link and back, again and again, while they are erased";
  zooCase.mayStay = {"root/pair*"};
  zooCase.build = [pairs, folders](ZooWorld& world) {
    const std::string inside = folders ? "/file" : "";
    const std::string real = "/real" + inside;
    std::vector<std::string> paths;
    for (int pair = 0; pair < pairs; ++pair) {
      const std::string target = numbered("outside/target", pair);
      const std::string folder = numbered("root/pair", pair);
      world.file(target + inside);
      world.file(folder + "/first");
      world.file(folder + real);
      world.link(folder + "/link", "../../" + target);
      world.file(folder + "/last");
      paths.push_back(world.path(folder));
    }
    world.other([paths = byInode(std::move(paths))](const Say& say) {
      swapOneAfterAnother(paths, say);
      stayUntilKilled();
    });
  };
  return zooCase;
}

void addFilesUntilKilled(const std::string& path, const Say& say) {
  const platform::Descriptor folder = openFolder(path);
  say("begins");
  for (int number = 0;; ++number) {
    const std::string name = numbered("new", number);
    const platform::Descriptor file(
        openat(folder.get(), name.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    if (!file.isOpen()) stayUntilKilled();  // The folder is gone.
  }
}

void replaceUntilKilled(const std::string& path, const Say& say) {
  const platform::Descriptor folder = openFolder(path);
  say("begins");
  for (;;) {
    const platform::Descriptor file(
        openat(folder.get(), "file.new", O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    renameat(folder.get(), "file.new", folder.get(), "file");
  }
}

// Outside there is a folder with the same names as in the root, to which the root's path leads as
// soon as the first file is erased.
void buildWithAPathThatTurns(ZooWorld& world) {
  for (int number = 0; number < 1000; ++number) {
    world.file(numbered("way/root/a/file", number));
    world.file(numbered("elsewhere/root/a/file", number));
  }
  world.link("turn", world.path("elsewhere"));
  world.other([&world](const Say& say) {
    const platform::Descriptor here = openFolder(world.folder());
    const FirstErasure first(world.path("way/root/a"));
    say("waits");
    first.wait();
    swapNames(here.get(), "way", "turn");
    stayUntilKilled();
  });
  world.atTheEnd([&world] {
    if (std::filesystem::is_symlink(world.path("way"))) {
      swapNames(openFolder(world.folder()).get(), "way", "turn");
    }
  });
}

}  // namespace

ZooCase foldersSwappedForLinks(int pairs) {
  return swapped("FoldersSwappedForLinks", "folders", pairs, true);
}

ZooCase filesSwappedForLinks(int pairs) {
  return swapped("FilesSwappedForLinks", "files", pairs, false);
}

ZooCase folderThatGrows() {
  return {.name = "FolderThatGrows",
          .title = "another program adds files to the folder as fast as it can",
          .build =
              [](ZooWorld& world) {
                for (int number = 0; number < 1000; ++number) {
                  world.file(numbered("root/folder/old", number));
                }
                world.other([path = world.path("root/folder")](const Say& say) {
                  addFilesUntilKilled(path, say);
                });
              },
          .mayStay = {"root/folder/new*"}};
}

std::vector<ZooCase> raceCases(int pairs) {
  return {
      foldersSwappedForLinks(pairs),
      filesSwappedForLinks(pairs),
      {.name = "PathOfTheRootThatTurns",
       .title = "the path to the folder turned into a link elsewhere, at the first erased file",
       .build = buildWithAPathThatTurns,
       .erased = "way/root"},
      {.name = "FolderThatVanishes",
       .title = "another program erases the same folder, from the first erased file on",
       .build =
           [](ZooWorld& world) {
             for (int number = 0; number < 500; ++number) {
               world.file(numbered("root/folder/file", number));
               world.file(numbered("root/folder/inner", number) + "/file");
             }
             world.other([&world](const Say& say) {
               const FirstErasure first(world.path("root/folder"));
               say("waits");
               first.wait();
               std::error_code ignored;
               std::filesystem::remove_all(world.path("root/folder"), ignored);
             });
           }},
      folderThatGrows(),
      {.name = "FileThatIsReplaced",
       .title = "another program replaces a file, again and again, by renaming a new one",
       .build =
           [](ZooWorld& world) {
             world.file("root/folder/file");
             world.other([path = world.path("root/folder")](const Say& say) {
               replaceUntilKilled(path, say);
             });
           },
       .mayStay = {"root/folder/file*"}},
  };
}

}  // namespace zelvane::test
