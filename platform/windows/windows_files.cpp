#include "platform/windows/windows_files.h"

#include <algorithm>
#include <utility>

#include <windows.h>

#include "platform/error.h"
#include "platform/shared/read_to_end.h"
#include "platform/windows/deletion.h"
#include "platform/windows/entry_kind.h"
#include "platform/windows/file_place.h"
#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "platform/windows/open_within.h"
#include "platform/windows/system_error.h"
#include "platform/windows/windows_pending_file.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kChunk = 65536;  // bytes
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A path through something that is no folder leads to no file either.
[[noreturn]] void throwForFile() {
  const Error error = errorFor(GetLastError());
  throw error.number() == ErrorNumber::pathNotFound ? Error(ErrorNumber::fileNotFound) : error;
}

// What the path leads to, be it a folder.
Handle openAny(const std::string& path, DWORD access) {
  return Handle(CreateFileW(longPath(path).c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

bool isFile(HANDLE opened) {
  return GetFileType(opened) == FILE_TYPE_DISK && factsOf(opened).kind == EntryKind::file;
}

Handle openForReading(const std::string& path) {
  Handle file = openAny(path, GENERIC_READ);
  if (!file.isOpen()) throwForFile();
  if (!isFile(file.get())) throw Error(ErrorNumber::accessError);
  return file;
}

class WindowsReadStream : public ReadStream {
 public:
  explicit WindowsReadStream(Handle file) : file_(std::move(file)) {}

  std::string read(std::size_t limit) override {
    std::string bytes;
    while (bytes.size() < limit) {
      const std::size_t before = bytes.size();
      const std::size_t wanted = std::min(limit - before, kChunk);
      DWORD count = 0;
      bytes.resize(before + wanted);
      const BOOL succeeded =
          ReadFile(file_.get(), bytes.data() + before, static_cast<DWORD>(wanted), &count, nullptr);
      bytes.resize(before + count);
      if (succeeded == 0) throwSystemError();
      if (count == 0) break;
    }
    return bytes;
  }

 private:
  Handle file_;
};

}  // namespace

bool WindowsFiles::exists(const std::string& path) const {
  if (path.find('\0') != std::string::npos) return false;
  const Handle file = openAny(path, FILE_READ_ATTRIBUTES);
  return file.isOpen() && isFile(file.get());
}

std::unique_ptr<ReadStream> WindowsFiles::open(const std::string& path) const {
  return std::make_unique<WindowsReadStream>(openForReading(path));
}

std::string WindowsFiles::readWhole(const std::string& path, std::uint64_t limit) const {
  WindowsReadStream stream(openForReading(path));
  return readToEnd(stream, limit);
}

void WindowsFiles::remove(const std::string& path) {
  const FilePlace place = placeOf(path);
  const Handle entry = openToDelete(
      [&](DWORD access) { return openWithin(place.folder.get(), place.name, {.access = access}); });
  if (!entry.isOpen()) throwForFile();
  const EntryFacts facts = factsOf(entry.get());
  if (facts.kind != EntryKind::file && facts.kind != EntryKind::link) {
    throw Error(ErrorNumber::accessError);
  }
  // Wine would delete what a link leads to.
  if (followsUnixLinks() && !isEntryOf(place.folder.get(), place.name, entry.get())) {
    throw Error(ErrorNumber::accessError);
  }
  if (!deleteOpen(entry.get(), facts.attributes)) throwSystemError();
}

std::unique_ptr<PendingFile> WindowsFiles::createBeside(const std::string& target) {
  FilePlace place = placeOf(target);
  return std::make_unique<WindowsPendingFile>(std::move(place.folder), std::move(place.name));
}

std::unique_ptr<PendingFile> WindowsFiles::createInPlaceOf(const std::string& target) {
  FilePlace place = placeOf(target);
  const Handle present =
      openWithin(place.folder.get(), place.name, {.access = FILE_READ_ATTRIBUTES});
  if (!present.isOpen()) throwForFile();
  const bool isLink =
      followsUnixLinks() && !isEntryOf(place.folder.get(), place.name, present.get());
  if (isLink || factsOf(present.get()).kind != EntryKind::file) {
    throw Error(ErrorNumber::accessError);
  }
  return std::make_unique<WindowsPendingFile>(std::move(place.folder), std::move(place.name),
                                              WindowsPendingFile::Rights::ofFolder);
}

}  // namespace zelvane::platform
