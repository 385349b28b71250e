#include "platform/linux/folder_entries.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20U;  // bytes, of which an entry takes 24 or more
constexpr std::size_t kFirstRoom = std::size_t{1} << 16U;
constexpr std::size_t kRoomForOne = sizeof(dirent64);  // with a name of any length

EntryKind kindOfMode(mode_t mode) {
  if (S_ISDIR(mode)) return EntryKind::folder;
  if (S_ISREG(mode)) return EntryKind::file;
  return S_ISLNK(mode) ? EntryKind::link : EntryKind::other;
}

std::optional<EntryFacts> ask(int folder, const char* name, int flags) {
  struct statx status {};
  if (statx(folder, name, flags | AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_BASIC_STATS,
            &status) != 0) {
    return std::nullopt;
  }
  return EntryFacts{
      .identity = {makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino},
      .kind = kindOfMode(status.stx_mode),
      .bytes = status.stx_size,
      .names = status.stx_nlink,
      .owner = status.stx_uid,
      .mode = status.stx_mode & 07777U};
}

// Not every file system says in its folders what the entries are; then each is asked.
EntryKind kindOfType(unsigned char type, int folder, const char* name) {
  switch (type) {
    case DT_DIR:
      return EntryKind::folder;
    case DT_REG:
      return EntryKind::file;
    case DT_LNK:
      return EntryKind::link;
    case DT_UNKNOWN: {
      const std::optional<EntryFacts> facts = ask(folder, name, 0);
      return facts ? facts->kind : EntryKind::other;
    }
    default:
      return EntryKind::other;
  }
}

}  // namespace

void FolderReader::read(int folder, const Use& use) {
  // Read through the descriptor itself: readdir's stream would take a second one.
  if (lseek(folder, 0, SEEK_SET) != 0) throwSystemError();
  for (bool ended = false; !ended;) {
    takeEntries(folder, fill(folder, ended));
    use(entries_);
  }
}

// Reads as many entries as there are, or as there is room for; returns the bytes that they take.
std::size_t FolderReader::fill(int folder, bool& ended) {
  std::size_t filled = 0;
  while (!ended && filled + kRoomForOne <= kPiece) {
    // Most folders are small and need no more than the first bit of the room.
    buffer_.resize(std::max(buffer_.size(), std::min(filled + kFirstRoom, kPiece)));
    const ssize_t read = getdents64(folder, buffer_.data() + filled, buffer_.size() - filled);
    if (read < 0) throwSystemError();
    ended = read == 0;
    filled += static_cast<std::size_t>(read);
  }
  return filled;
}

void FolderReader::takeEntries(int folder, std::size_t filled) {
  entries_.clear();
  for (std::size_t at = 0; at < filled;) {
    const auto* raw = reinterpret_cast<const dirent64*>(buffer_.data() + at);
    at += raw->d_reclen;
    const std::string_view name = raw->d_name;
    if (name == "." || name == "..") continue;
    entries_.push_back({raw->d_ino, name, kindOfType(raw->d_type, folder, raw->d_name)});
  }
  std::ranges::sort(entries_, {}, &Entry::inode);
}

std::optional<EntryFacts> factsOf(int folder, const std::string& name) {
  return ask(folder, name.c_str(), 0);
}

std::optional<EntryFacts> factsOf(int descriptor) { return ask(descriptor, "", AT_EMPTY_PATH); }

}  // namespace zelvane::platform
