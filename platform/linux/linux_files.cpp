#include "platform/linux/linux_files.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/system_error.h"
#include "platform/shared/read_to_end.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kChunk = 65536;

// A path through something that is no folder leads to no file either.
[[noreturn]] void throwForFile() {
  throw errno == ENOTDIR ? Error(ErrorNumber::fileNotFound) : errorFor(errno);
}

Descriptor openForReading(const std::string& path) {
  struct stat status {};
  if (stat(kernelPath(path), &status) != 0) throwForFile();
  // Asked before opening, because opening a device may already make it do something ...
  if (!S_ISREG(status.st_mode)) throw Error(ErrorNumber::accessError);
  // ... and again after it, because the name may lead somewhere else by now. A pipe must not block.
  Descriptor file(::open(kernelPath(path), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.isOpen() || fstat(file.get(), &status) != 0) throwForFile();
  if (!S_ISREG(status.st_mode)) throw Error(ErrorNumber::accessError);
  return file;
}

class LinuxReadStream : public ReadStream {
 public:
  explicit LinuxReadStream(Descriptor file) : file_(std::move(file)) {}

  std::string read(std::size_t limit) override {
    std::string bytes;
    while (bytes.size() < limit) {
      const std::size_t before = bytes.size();
      bytes.resize(before + std::min(limit - before, kChunk));
      const ssize_t count = ::read(file_.get(), bytes.data() + before, bytes.size() - before);
      bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
      if (count == 0) break;
      if (count < 0 && errno != EINTR) throwSystemError();
    }
    return bytes;
  }

 private:
  Descriptor file_;
};

struct FilePlace {
  Descriptor folder;
  std::string name;
};

FilePlace placeOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::string folderPath = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  if (name.empty() || name == "." || name == "..") throw Error(ErrorNumber::accessError);
  Descriptor folder(::open(kernelPath(folderPath), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) {
    throw errno == ENOENT ? Error(ErrorNumber::pathNotFound) : errorFor(errno);
  }
  kernelPath(name);
  return {std::move(folder), std::move(name)};
}

}  // namespace

bool LinuxFiles::exists(const std::string& path) const {
  struct stat status {};
  return path.find('\0') == std::string::npos && stat(path.c_str(), &status) == 0 &&
         S_ISREG(status.st_mode);
}

std::unique_ptr<ReadStream> LinuxFiles::open(const std::string& path) const {
  return std::make_unique<LinuxReadStream>(openForReading(path));
}

std::string LinuxFiles::readWhole(const std::string& path, std::uint64_t limit) const {
  LinuxReadStream stream(openForReading(path));
  return readToEnd(stream, limit);
}

void LinuxFiles::remove(const std::string& path) {
  if (unlink(kernelPath(path)) != 0) throwForFile();
}

std::unique_ptr<PendingFile> LinuxFiles::createBeside(const std::string& target) {
  FilePlace place = placeOf(target);
  return std::make_unique<LinuxPendingFile>(std::move(place.folder), std::move(place.name));
}

std::unique_ptr<PendingFile> LinuxFiles::createInPlaceOf(const std::string& target) {
  constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
  FilePlace place = placeOf(target);
  struct stat status {};
  if (fstatat(place.folder.get(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
    throwForFile();
  }
  if (!S_ISREG(status.st_mode)) throw Error(ErrorNumber::accessError);
  auto file = std::make_unique<LinuxPendingFile>(std::move(place.folder), std::move(place.name));
  file->setPermissions(status.st_mode & kPermissions);
  return file;
}

}  // namespace zelvane::platform
