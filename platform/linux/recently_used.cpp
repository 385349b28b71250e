#include "platform/linux/recently_used.h"

#include <memory>
#include <optional>
#include <vector>

#include <fcntl.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/recent_list.h"

namespace zelvane::platform {
namespace {

constexpr const char* kList = "recently-used.xbel";

// Entries of the folder that are called like the list with an ending of their own.
std::vector<std::string> copiesIn(const std::string& folder) {
  std::vector<std::string> copies;
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened.isOpen()) return copies;
  FolderReader().read(opened.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (entry.name.starts_with(std::string(kList) + ".") && entry.kind != EntryKind::folder) {
        copies.emplace_back(entry.name);
      }
    }
  });
  return copies;
}

template <typename Store>
void addIfThere(LiveFinding& finding, const std::string& folder, const std::string& name) {
  const std::string path = folder + "/" + name;
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, path);
  if (!facts || facts->kind == EntryKind::folder) return;
  finding.places.push_back(path);
  // The dot of a hidden list's name would hide it here, too.
  finding.folder.addStore(name.substr(name.find_first_not_of('.')), std::make_unique<Store>(path));
}

}  // namespace

RecentlyUsed::RecentlyUsed(const Environment& environment)
    : home_(environment.home), dataHome_(environment.dataHome) {}

void RecentlyUsed::find(SpecialFolder folder, LiveFinding& finding) const {
  if (folder != SpecialFolder::recent) return;
  addIfThere<RecentList>(finding, dataHome_, kList);
  for (const std::string& copy : copiesIn(dataHome_)) {
    addIfThere<RecentListCopy>(finding, dataHome_, copy);
  }
  addIfThere<RecentList>(finding, home_, std::string(".") + kList);
  addIfThere<RecentListCopy>(finding, home_, ".recently-used");
  const std::string documents = dataHome_ + "/RecentDocuments";
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, documents);
  if (facts && facts->kind == EntryKind::folder) {
    finding.places.push_back(documents);
    finding.folder.addRealFolder("RecentDocuments", documents);
  }
}

}  // namespace zelvane::platform
