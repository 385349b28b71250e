#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {

std::vector<ZooCase> kindCases() {
  return {
      {.name = "Pipe",
       .title = "a named pipe",
       .stays = {"root/pipe", "root/plain/pipe"},
       .build =
           [](ZooWorld& world) {
             world.pipe("root/pipe");
             world.pipe("root/plain/pipe");
           }},
      {.name = "Socket",
       .title = "a socket",
       .stays = {"root/socket", "root/plain/socket"},
       .build =
           [](ZooWorld& world) {
             world.socket("root/socket");
             world.socket("root/plain/socket");
           }},
      {.name = "HiddenFiles",
       .title = "hidden files, and a hidden folder",
       .stays = {"root/.hidden", "root/plain/folder/.hidden"},
       .build =
           [](ZooWorld& world) {
             world.file("root/.hidden");
             world.file("root/plain/folder/.hidden");
             world.file("root/.folder/file");
           }},
  };
}

}  // namespace zelvane::test
