#include "platform/linux/recent_list.h"

#include <QByteArray>
#include <QXmlStreamReader>
#include <optional>

#include <fcntl.h>

#include "platform/error.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/linux_files.h"
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

void refuseLinksAndFilesInUse(const std::string& path) {
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, path);
  if (!facts) throw Error(ErrorNumber::fileNotFound);
  if (facts->kind != EntryKind::file) throw Error(ErrorNumber::accessError);
  if (OpenFilesSnapshot().contains(facts->identity)) throw Error(ErrorNumber::permissionDenied);
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
  refuseLinksAndFilesInUse(path_);
  const std::unique_ptr<PendingFile> list = LinuxFiles().createBeside(path_);
  list->write(kEmptyList);
  list->publish();
}

bool RecentListCopy::holdsAnything() const { return isThere(path_); }

void RecentListCopy::erase() {
  refuseLinksAndFilesInUse(path_);
  LinuxFiles().remove(path_);
}

}  // namespace zelvane::platform
