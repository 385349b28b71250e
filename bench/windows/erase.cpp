// Erases one tree and ends, so that its whole process can be timed:
//   erase port FOLDER          as a cleaning run does, through the folder tree; the folder stays
//   erase remove_all FOLDER    as the standard library does
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "cleaner/erasure.h"
#include "platform/windows/windows_folder_tree.h"
#include "tests/support/no_events.h"

namespace {

int erase(const std::string& way, const std::string& folder) {
  if (way == "port") {
    zelvane::platform::WindowsFolderTree tree;
    zelvane::test::NoEvents pump;
    zelvane::cleaner::eraseContents(tree, pump, folder);
    return 0;
  }
  if (way == "remove_all") {
    std::filesystem::remove_all(folder);
    return 0;
  }
  return 2;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return count == 3 ? erase(arguments[1], arguments[2]) : 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
