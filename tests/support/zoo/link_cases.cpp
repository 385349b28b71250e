#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {

// No link leads out of the world, not even to "/": an eraser that follows links would really do it.
std::vector<ZooCase> linkCases() {
  return {
      {.name = "LinkAsTheRoot",
       .title = "the folder to erase is itself a link to a folder outside",
       .build = [](ZooWorld& world) { world.link("link", world.path("outside")); },
       .erased = "link",
       .refused = true},
      {.name = "LinkAsTheRootWithAClosingSlash",
       .title = "the same link, given with a closing slash",
       .build = [](ZooWorld& world) { world.link("link", world.path("outside")); },
       .erased = "link/",
       .refused = true},
      {.name = "LinkToAFileOutside",
       .title = "a link to a file outside",
       .build = [](ZooWorld& world) { world.link("root/link", world.path("outside/file")); }},
      {.name = "LinkToAFolderOutside",
       .title = "links to a folder outside, at the top and further down",
       .build =
           [](ZooWorld& world) {
             world.link("root/link", world.path("outside"));
             world.link("root/plain/folder/link", "../../../outside/folder");
           }},
      {.name = "LinkThatLeadsNowhere",
       .title = "a link that leads nowhere",
       .build = [](ZooWorld& world) { world.link("root/link", world.path("nothing")); }},
      {.name = "LinkToTheFolderAbove",
       .title = "a link to `..`",
       .build =
           [](ZooWorld& world) {
             world.link("root/link", "..");
             world.link("root/plain/link", "../..");
           }},
      {.name = "LinksThatLoop",
       .title = "links in a ring, a link to itself, links to the folders they lie in",
       .build =
           [](ZooWorld& world) {
             world.link("root/a", "b");
             world.link("root/b", "a");
             world.link("root/self", "self");
             world.link("root/plain/folder/up", world.path("root"));
             world.link("root/plain/here", ".");
           }},
      {.name = "LinkUnderAHiddenName",
       .title = "a link to a folder outside, under a hidden name",
       .stays = {"root/.link"},
       .build = [](ZooWorld& world) { world.link("root/.link", world.path("outside")); }},
      {.name = "AnotherNameOfAFileOutside",
       .title = "a second name (hard link) of a file outside",
       .build = [](ZooWorld& world) { world.hardLink("root/name", "outside/file"); }},
  };
}

}  // namespace zelvane::test
