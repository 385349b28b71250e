#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {

std::vector<ZooCase> permissionCases() {
  return {
      {.name = "FolderThatMayNotBeWritten",
       .title = "folders without write permission (0500), files without (0400, 0000)",
       .build =
           [](ZooWorld& world) {
             world.file("root/readOnly");
             world.permissions("root/readOnly", 0400);
             world.file("root/folder/inner/file");
             world.file("root/folder/none");
             world.permissions("root/folder/none", 0);
             world.permissions("root/folder/inner", 0500);
             world.permissions("root/folder", 0500);
           },
       .needs = Needs::permissions},
      {.name = "RootThatMayNotBeWritten",
       .title = "the folder to erase has no write permission (0500)",
       .build = [](ZooWorld& world) { world.permissions("root", 0500); },
       .needs = Needs::permissions},
      {.name = "FolderThatMayNotBeSearched",
       .title = "a folder without search permission (0600)",
       .build =
           [](ZooWorld& world) {
             world.file("root/folder/file");
             world.file("root/folder/inner/file");
             world.permissions("root/folder", 0600);
           },
       .needs = Needs::permissions},
      {.name = "FolderThatMayNotBeRead",
       .title = "folders that their owner may not read (0000, 0300), with files in them",
       .stays = {"root/none", "root/blind", "root/plain/none"},
       .build =
           [](ZooWorld& world) {
             for (const std::string name : {"root/none", "root/blind", "root/plain/none"}) {
               world.file(name + "/file");
               world.permissions(name, 0);
             }
             world.permissions("root/blind", 0300);
           },
       .needs = Needs::permissions},
      {.name = "ForcedFolderThatKeepsAHiddenFile",
       .title = "a folder without write permission (0500) that keeps something",
       .stays = {"root/folder/.hidden"},
       .build =
           [](ZooWorld& world) {
             world.file("root/folder/file");
             world.file("root/folder/.hidden");
             world.permissions("root/folder", 0500);
           },
       .needs = Needs::permissions},
      {.name = "StickyFolderOfOnesOwn",
       .title = "a sticky folder that everybody may write (1777)",
       .build =
           [](ZooWorld& world) {
             world.file("root/shared/file");
             world.permissions("root/shared", 01777);
           }},
  };
}

}  // namespace zelvane::test
