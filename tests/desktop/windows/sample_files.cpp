#include "tests/desktop/windows/sample_files.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <windows.h>

#include "platform/windows/long_path.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

std::string made(const std::string& path) {
  makeFile(path);
  return path;
}

std::string madeWith(DWORD attributes, const std::string& path) {
  makeFile(path);
  setAttributes(path, attributes);
  return path;
}

}  // namespace

SampleFiles::SampleFiles(const ThrowAwayWorld& world) {
  writeDocuments(world);
  writeOthers(world);
}

void SampleFiles::writeDocuments(const ThrowAwayWorld& world) {
  const std::string documents = world.documents();
  for (const char* name : {"\\letter to the bank.txt", "\\holidays\\packing list.txt",
                           "\\holidays\\2025\\Lisbon\\tickets.pdf", "\\taxes\\2025\\return.pdf",
                           "\\no ending", "\\Übersicht – größer.ods"}) {
    traces.push_back(made(documents + name));
  }
  for (const char* name : {"\\holidays\\2025\\Lisbon", "\\holidays", "\\taxes"}) {
    traces.push_back(documents + name);
  }
  traces.push_back(madeWith(FILE_ATTRIBUTE_READONLY, documents + "\\read-only.txt"));
  traces.push_back(madeWith(FILE_ATTRIBUTE_ARCHIVE, documents + "\\diary\\cover.txt"));
  kept.push_back(madeWith(FILE_ATTRIBUTE_HIDDEN, documents + "\\diary\\today.txt"));
  kept.push_back(madeWith(FILE_ATTRIBUTE_SYSTEM, documents + "\\desktop.ini"));
  kept.push_back(documents + "\\diary");
  holdOpen(documents + "\\minutes\\of today.txt");
  kept.push_back(documents + "\\minutes");
  makeFile(world / "outside/album/wedding.jpg");
  makeLink(documents + "\\link to a folder", world / "outside/album");
  makeLink(documents + "\\link to a file", world / "outside/album/wedding.jpg");
}

void SampleFiles::writeOthers(const ThrowAwayWorld& world) {
  for (const std::string& name :
       {world.favorites() + "\\news.url", world.favorites() + "\\links\\weather.url",
        world.recent() + "\\letter to the bank.lnk", world.cache() + "\\IE\\A1B2\\picture[1].jpg",
        world.cookies() + "\\user@example[1].txt", world.history() + "\\week\\index.html",
        world.temporary() + "\\build-1234.tmp", world.temporary() + "\\installer\\step1.bin"}) {
    traces.push_back(made(name));
  }
  traces.push_back(world.discard("old plan.txt"));
  traces.push_back(world.trash() + "\\info\\old plan.txt.trashinfo");
  holdOpen(world.temporary() + "\\in use.tmp");
  for (const std::string& folder :
       {world.documents(), world.favorites(), world.recent(), world.cache(), world.cookies(),
        world.history(), world.temporary(), world / "outside/album/wedding.jpg"}) {
    kept.push_back(folder);
  }
}

// In the mildest way: reading alone, and everything allowed to others.
void SampleFiles::holdOpen(const std::string& path) {
  makeFile(path);
  held_.emplace_back(CreateFileW(platform::longPath(path).c_str(), GENERIC_READ,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, 0, nullptr));
  kept.push_back(path);
}

std::vector<std::string> existing(const std::vector<std::string>& paths) {
  std::vector<std::string> found;
  std::ranges::copy_if(paths, std::back_inserter(found), isThere);
  return found;
}

}  // namespace zelvane::test
