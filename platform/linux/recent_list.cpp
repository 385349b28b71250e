#include "platform/linux/recent_list.h"

#include <QByteArray>
#include <QXmlStreamReader>
#include <optional>
#include <span>

#include <fcntl.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/open_files_snapshot.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestList = std::uint64_t{64} << 20U;

constexpr const char* kEmptyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n"
    "></xbel>\n";

bool isThere(const std::string& path) { return factsOf(AT_FDCWD, path).has_value(); }

void refuseLinksAndFilesInUse(const std::string& path, const OpenFilesSnapshot& inUse) {
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, path);
  if (!facts) throw Error(ErrorNumber::fileNotFound);
  if (facts->kind != EntryKind::file) throw Error(ErrorNumber::accessError);
  if (inUse.contains(facts->identity)) throw Error(ErrorNumber::permissionDenied);
}

// A kill may have left a new list under the name it had while it waited. Who still writes one has
// it open.
void sweepAwayUnfinishedLists(const std::string& folder, const OpenFilesSnapshot& inUse) {
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened.isOpen()) return;
  FolderReader().read(opened.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (!LinuxPendingFile::isHiddenName(entry.name)) continue;
      const auto facts = factsOf(opened.get(), std::string(entry.name));
      const bool isLeft =
          facts && facts->kind == EntryKind::file && !inUse.contains(facts->identity);
      if (isLeft) unlinkat(opened.get(), entry.name.data(), 0);
    }
  });
}

bool isKnownToBeEmpty(const std::string& list) {
  QXmlStreamReader reader(QByteArray::fromStdString(list));
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement() && reader.name() == QLatin1String("bookmark")) return false;
  }
  return !reader.hasError();
}

}  // namespace

bool RecentList::holdsAnything() const {
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, path_);
  if (!facts) return false;
  if (facts->kind != EntryKind::file) return true;
  try {
    return !isKnownToBeEmpty(LinuxFiles().readWhole(path_, kLongestList));
  } catch (const Error&) {
    return true;  // it may hold anything
  }
}

void RecentList::erase() {
  const OpenFilesSnapshot inUse;
  refuseLinksAndFilesInUse(path_, inUse);
  sweepAwayUnfinishedLists(path_.substr(0, path_.rfind('/') + 1), inUse);
  const std::unique_ptr<PendingFile> list = LinuxFiles().createBeside(path_);
  list->write(kEmptyList);
  list->publish();
}

bool RecentListCopy::holdsAnything() const { return isThere(path_); }

void RecentListCopy::erase() {
  refuseLinksAndFilesInUse(path_, OpenFilesSnapshot());
  LinuxFiles().remove(path_);
}

}  // namespace zelvane::platform
