#include "platform/linux/open_files_snapshot.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestMaps = std::uint64_t{64} << 20U;

// The ordinary file to which `name` leads. What is known of a file on a network is good enough: one
// that does not answer must not hold up an erasure elsewhere.
std::optional<FileIdentity> fileBehind(int folder, const char* name) {
  struct statx status {};
  if (statx(folder, name, AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC, STATX_TYPE | STATX_INO, &status) !=
          0 ||
      !S_ISREG(status.stx_mode)) {
    return std::nullopt;
  }
  return FileIdentity{makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino};
}

// Cuts the field before the next blank off the line.
std::string_view nextField(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const std::string_view field = line.substr(0, line.find(' '));
  line.remove_prefix(field.size());
  return field;
}

template <typename Number>
Number numberIn(std::string_view text, int base) {
  Number number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number, base);
  return number;
}

}  // namespace

OpenFilesSnapshot::OpenFilesSnapshot(const std::string& processFolder) {
  const Descriptor processes(open(kernelPath(processFolder), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!processes.isOpen()) return;
  FolderReader().read(processes.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (entry.name.find_first_not_of("0123456789") == std::string::npos) {
        addProcess(processFolder + "/" + std::string(entry.name));
      }
    }
  });
}

void OpenFilesSnapshot::addProcess(const std::string& process) {
  try {
    addDescriptors(process);
    addMaps(process);
  } catch (const Error&) {
    // Ended meanwhile, or another user's: it holds nothing that this user could take from it.
  }
}

void OpenFilesSnapshot::addDescriptors(const std::string& process) {
  const Descriptor folder(open(kernelPath(process + "/fd"), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) return;
  descriptors_.read(folder.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (const auto file = fileBehind(folder.get(), entry.name.data())) add(*file);
    }
  });
}

bool OpenFilesSnapshot::add(const FileIdentity& file) {
  inodes_.insert(file.inode);
  return files_.insert(file).second;
}

// A program that runs, a library and a file that was mapped and closed appear in the maps alone.
void OpenFilesSnapshot::addMaps(const std::string& process) {
  const std::string maps = LinuxFiles().readWhole(process + "/maps", kLongestMaps);
  for (std::string_view rest = maps; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    addMap(line);
  }
}

// A line: "7f3c0000-7f3d0000 r-xp 00001000 08:01 264571      /usr/lib/libfoo.so.1"
void OpenFilesSnapshot::addMap(std::string_view line) {
  nextField(line);  // addresses
  nextField(line);  // permissions
  nextField(line);  // offset
  const std::string_view device = nextField(line);
  const ino_t inode = numberIn<ino_t>(nextField(line), 10);
  const std::size_t colon = device.find(':');
  if (inode == 0 || colon == std::string_view::npos) return;
  const FileIdentity listed{makedev(numberIn<unsigned>(device.substr(0, colon), 16),
                                    numberIn<unsigned>(device.substr(colon + 1), 16)),
                            inode};
  if (!add(listed)) return;
  // Some file systems (Btrfs) show programs another device number than the one that is listed here.
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const std::optional<FileIdentity> shown = fileBehind(AT_FDCWD, std::string(line).c_str());
  if (shown && shown->inode == inode) add(*shown);
}

}  // namespace zelvane::platform
