#include "platform/shared/live_folder.h"

#include <algorithm>
#include <utility>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

bool isSingleName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
}

}  // namespace

class LiveOpenFolder : public OpenFolder {
 public:
  LiveOpenFolder(LiveFolder& folder, FolderTree& tree) : folder_(folder), tree_(tree) {}

  FolderListing list(EventPump&) override {
    FolderListing listing;
    for (const LiveFolder::Entry& entry : folder_.entries_) {
      const auto* store = std::get_if<std::unique_ptr<LiveStore>>(&entry.what);
      if (store == nullptr) {
        listing.subfolders.add(entry.name);
      } else if ((*store)->holdsAnything()) {
        listing.files.add(entry.name);
      }
    }
    return listing;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    LiveFolder::Entry* entry = find(name);
    if (entry == nullptr) throw Error(ErrorNumber::pathNotFound);
    if (const auto* open = std::get_if<LiveFolder::Opener>(&entry->what)) return (*open)(tree_);
    if (const auto* folder = std::get_if<std::unique_ptr<LiveFolder>>(&entry->what)) {
      return (*folder)->open(tree_);
    }
    throw Error(ErrorNumber::accessError);
  }

  void removeFile(const std::string& name) override {
    LiveFolder::Entry* entry = find(name);
    if (entry == nullptr) return;
    auto* store = std::get_if<std::unique_ptr<LiveStore>>(&entry->what);
    if (store == nullptr) throw Error(ErrorNumber::accessError);
    if ((*store)->holdsAnything()) (*store)->erase();
  }

  void removeFolder(const std::string& name) override {
    LiveFolder::Entry* entry = find(name);
    if (entry != nullptr && std::holds_alternative<std::unique_ptr<LiveStore>>(entry->what)) {
      throw Error(ErrorNumber::accessError);
    }
  }

 private:
  LiveFolder::Entry* find(const std::string& name) {
    if (!isSingleName(name)) throw Error(ErrorNumber::accessError);
    return folder_.find(name);
  }

  LiveFolder& folder_;
  FolderTree& tree_;
};

void LiveFolder::addStore(const std::string& name, std::unique_ptr<LiveStore> store) {
  entries_.push_back({freeName(name), std::move(store)});
}

LiveFolder& LiveFolder::addSubfolder(const std::string& name) {
  entries_.push_back({freeName(name), std::make_unique<LiveFolder>()});
  return *std::get<std::unique_ptr<LiveFolder>>(entries_.back().what);
}

void LiveFolder::addRealFolder(const std::string& name, const std::string& path) {
  addFolder(name, [path](FolderTree& tree) { return tree.openRoot(path); });
}

void LiveFolder::addFolder(const std::string& name, Opener open) {
  entries_.push_back({freeName(name), std::move(open)});
}

std::unique_ptr<OpenFolder> LiveFolder::open(FolderTree& tree) {
  return std::make_unique<LiveOpenFolder>(*this, tree);
}

std::string LiveFolder::freeName(std::string name) const {
  std::ranges::replace_if(
      name, [](char letter) { return letter == '/' || letter == '\\' || letter == '\0'; }, '_');
  if (!isSingleName(name)) name += '_';
  const auto isTaken = [this](const std::string& candidate) {
    return std::ranges::count(entries_, candidate, &Entry::name) > 0;
  };
  std::string candidate = name;
  for (int number = 2; isTaken(candidate); ++number) {
    candidate = name + " (" + std::to_string(number) + ")";
  }
  return candidate;
}

LiveFolder::Entry* LiveFolder::find(const std::string& name) {
  const auto found = std::ranges::find(entries_, name, &Entry::name);
  return found == entries_.end() ? nullptr : &*found;
}

}  // namespace zelvane::platform
