#include "platform/shared/live_folders.h"

#include <utility>

namespace zelvane::platform {
namespace {

// A root that keeps alive what it shows.
class LiveRoot : public OpenFolder {
 public:
  LiveRoot(LiveFolder folder, FolderTree& tree)
      : folder_(std::move(folder)), open_(folder_.open(tree)) {}

  FolderListing list(EventPump& pump) override { return open_->list(pump); }
  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    return open_->openSubfolder(name);
  }
  void removeFile(const std::string& name) override { open_->removeFile(name); }
  void removeFolder(const std::string& name) override { open_->removeFolder(name); }

 private:
  LiveFolder folder_;
  std::unique_ptr<OpenFolder> open_;
};

// Whoever asks for a special folder's path takes one of 254 characters at most, and a longer one
// for none. A user with many profiles has more places than that.
constexpr std::size_t kLongestText = 254;

// As many places as there is room for, and how many more there are.
std::string joined(const std::vector<std::string>& places) {
  std::string text;
  for (std::size_t named = 0; named < places.size(); ++named) {
    const std::string next = (text.empty() ? "" : ", ") + places[named];
    const std::size_t left = places.size() - named - 1;
    const std::string rest = left == 0 ? "" : " and " + std::to_string(left) + " more";
    if (text.size() + next.size() + rest.size() > kLongestText) {
      return text.empty() ? std::to_string(places.size()) + " places"
                          : text + " and " + std::to_string(left + 1) + " more";
    }
    text += next;
  }
  return text;
}

std::string lastName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

std::string withoutClosingSeparators(std::string path) {
  while (path.ends_with('/') || path.ends_with('\\')) path.pop_back();
  return path;
}

}  // namespace

LiveFolders::LiveFolders(const SpecialFolders& folders, FolderTree& tree, Sources sources)
    : folders_(folders), tree_(tree), sources_(std::move(sources)) {}

std::optional<std::string> LiveFolders::path(SpecialFolder folder) const {
  const LiveFinding finding = find(folder);
  if (finding.folder.isEmpty()) return folders_.path(folder);
  std::string text = joined(finding.places);
  given_[text] = folder;
  return text;
}

std::unique_ptr<OpenFolder> LiveFolders::openRoot(const std::string& path) {
  const auto given = given_.find(withoutClosingSeparators(path));
  if (given == given_.end()) return tree_.openRoot(path);
  LiveFinding finding = find(given->second);
  if (finding.folder.isEmpty()) return tree_.openRoot(path);
  return std::make_unique<LiveRoot>(std::move(finding.folder), tree_);
}

// Empty unless a source contributes; then the desktop's own folder comes first.
LiveFinding LiveFolders::find(SpecialFolder folder) const {
  LiveFinding found;
  const std::optional<std::string> own = folders_.path(folder);
  if (own) {
    found.places.push_back(*own);
    found.folder.addRealFolder(lastName(*own), *own);
  }
  const std::size_t ownPlaces = found.places.size();
  for (const LiveSource& source : sources_) source.find(folder, found);
  return found.places.size() > ownPlaces ? std::move(found) : LiveFinding();
}

}  // namespace zelvane::platform
