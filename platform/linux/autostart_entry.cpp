#include "platform/linux/autostart_entry.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/desktop_entry_text.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/private_folder.h"
#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

constexpr auto kName = "zelvane.desktop";
constexpr std::string_view kMark = "\nX-Zelvane-Entry=startup\n";

// Longer ones are somebody else's.
constexpr std::size_t kLongestEntry = 65536;

bool isOwn(const Descriptor& opened, mode_t kind) {
  struct stat status {};
  return fstat(opened.get(), &status) == 0 && (status.st_mode & S_IFMT) == kind &&
         status.st_uid == geteuid();
}

// Nothing where it is too long or cannot be read.
std::optional<std::string> contentOf(const Descriptor& file) {
  std::string text(kLongestEntry + 1, '\0');
  std::size_t length = 0;
  while (length < text.size()) {
    const ssize_t count = ::read(file.get(), text.data() + length, text.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) {
      text.resize(length);
      return text;
    }
    length += static_cast<std::size_t>(count);
  }
  return std::nullopt;
}

}  // namespace

AutostartEntry::AutostartEntry(const Environment& environment, const Identity& identity,
                               Ledger& ledger)
    : folder_(environment.configHome + "/autostart"), identity_(identity), ledger_(ledger) {}

std::optional<Descriptor> AutostartEntry::folderIfThere() const {
  Descriptor folder(open(kernelPath(folder_), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder.isOpen()) {
    if (errno == ENOENT) return std::nullopt;
    throwSystemError();
  }
  if (!isOwn(folder, S_IFDIR)) throw Error(ErrorNumber::permissionDenied);
  return folder;
}

bool AutostartEntry::isSomebodyElses(const Descriptor& folder) const {
  const Descriptor file(
      openat(folder.get(), kName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.isOpen()) return errno != ENOENT;
  if (!isOwn(file, S_IFREG)) return true;
  const auto content = contentOf(file);
  return !content || ("\n" + *content).find(kMark) == std::string::npos;
}

std::string AutostartEntry::text() const {
  const std::string folder = identity_.programFolder();
  const std::string program =
      (folder.ends_with('/') ? folder : folder + "/") + identity_.executableName();
  // A desktop passes over an entry whose program, "TryExec", is not there any more.
  return "[Desktop Entry]\nType=Application\nVersion=1.0\nName=" +
         entryValue(identity_.version().productName) +
         "\nComment=Starts with the session, as chosen in its window\nTryExec=" +
         entryValue(program) + "\nExec=" + execValue(program) +
         "\nIcon=zelvane\nTerminal=false\nX-GNOME-Autostart-enabled=true" + std::string(kMark);
}

Ledger::Entry AutostartEntry::note() const { return {Ledger::Kind::file, folder_ + "/" + kName}; }

void AutostartEntry::write() {
  const std::string entry = text();
  auto folder = folderIfThere();
  if (folder && isSomebodyElses(*folder)) throw Error(ErrorNumber::fileExists);
  ledger_.note(note());
  if (!folder) {
    makeMissingFolders(folder_);
    folder = folderIfThere();
    if (!folder) throw Error(ErrorNumber::pathNotFound);
  }
  LinuxPendingFile::sweepAwayWhatKillsLeft(*folder);
  LinuxPendingFile file(*std::move(folder), kName);
  file.write(entry);
  file.publish();
}

void AutostartEntry::erase() {
  const auto folder = folderIfThere();
  if (folder && !isSomebodyElses(*folder) && unlinkat(folder->get(), kName, 0) != 0 &&
      errno != ENOENT) {
    throwSystemError();
  }
  ledger_.strike(note());
}

}  // namespace zelvane::platform
