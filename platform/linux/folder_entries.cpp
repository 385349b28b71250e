#include "platform/linux/folder_entries.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

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
EntryKind kindOfType(unsigned char type, int folder, const std::string& name) {
  switch (type) {
    case DT_DIR:
      return EntryKind::folder;
    case DT_REG:
      return EntryKind::file;
    case DT_LNK:
      return EntryKind::link;
    case DT_UNKNOWN: {
      const std::optional<EntryFacts> facts = factsOf(folder, name);
      return facts ? facts->kind : EntryKind::other;
    }
    default:
      return EntryKind::other;
  }
}

}  // namespace

std::vector<Entry> entriesOf(int folder) {
  // Read through the descriptor itself: readdir's stream would take a second one.
  if (lseek(folder, 0, SEEK_SET) != 0) throwSystemError();
  std::vector<Entry> entries;
  alignas(dirent64) std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t filled = getdents64(folder, buffer.data(), buffer.size());
    if (filled < 0) throwSystemError();
    if (filled == 0) break;
    for (std::size_t at = 0; at < static_cast<std::size_t>(filled);) {
      const auto* raw = reinterpret_cast<const dirent64*>(buffer.data() + at);
      at += raw->d_reclen;
      const std::string_view name = raw->d_name;
      if (name == "." || name == "..") continue;
      Entry& entry = entries.emplace_back(Entry{raw->d_ino, std::string(name)});
      entry.kind = kindOfType(raw->d_type, folder, entry.name);
    }
  }
  std::ranges::sort(entries, {}, &Entry::inode);
  return entries;
}

std::optional<EntryFacts> factsOf(int folder, const std::string& name) {
  return ask(folder, name.c_str(), 0);
}

std::optional<EntryFacts> factsOf(int descriptor) { return ask(descriptor, "", AT_EMPTY_PATH); }

}  // namespace zelvane::platform
