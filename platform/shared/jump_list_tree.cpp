#include "platform/shared/jump_list_tree.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/compound_file_writer.h"
#include "platform/shared/jump_list.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestList = std::uint64_t{16} << 20U;
constexpr std::string_view kAutomatic = "AutomaticDestinations";
constexpr std::string_view kCustom = "CustomDestinations";

bool endsWith(std::string_view name, std::string_view ending) {
  return name.size() >= ending.size() && sameName(name.substr(name.size() - ending.size()), ending);
}

// A folder that passes everything on to another one.
class Passing : public OpenFolder {
 public:
  explicit Passing(std::unique_ptr<OpenFolder> folder) : folder_(std::move(folder)) {}

  FolderListing list(EventPump& pump) override { return folder_->list(pump); }
  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    return folder_->openSubfolder(name);
  }
  void removeFile(const std::string& name) override { folder_->removeFile(name); }
  void removeFolder(const std::string& name) override { folder_->removeFolder(name); }

 private:
  std::unique_ptr<OpenFolder> folder_;
};

class JumpLists : public Passing {
 public:
  JumpLists(std::unique_ptr<OpenFolder> folder, std::string path, Files& files)
      : Passing(std::move(folder)), path_(std::move(path)), files_(files) {}

  void removeFile(const std::string& name) override {
    if (endsWith(name, ".automaticDestinations-ms")) leavePins(name);
    Passing::removeFile(name);
  }

 private:
  // Throws where something of the list stays.
  void leavePins(const std::string& name) {
    const std::string list = path_ + "/" + name;
    if (!files_.exists(list)) return;
    const std::optional<PinnedPart> pinned = pinnedPart(files_.readWhole(list, kLongestList));
    if (!pinned) {
      throw Error(ErrorNumber::permissionDenied, name + " may hold what its user has pinned");
    }
    if (pinned->streams.empty()) return;
    if (!pinned->isAll) replace(list, pinned->streams);
    throw Error(ErrorNumber::permissionDenied, name + " holds what its user has pinned");
  }

  void replace(const std::string& list, const std::vector<NamedStream>& streams) {
    const std::unique_ptr<PendingFile> file = files_.createInPlaceOf(list);
    file->write(compoundFile(streams));
    file->publish();
  }

  std::string path_;
  Files& files_;
};

class RecentDocuments : public Passing {
 public:
  RecentDocuments(std::unique_ptr<OpenFolder> folder, std::string path, Files& files)
      : Passing(std::move(folder)), path_(std::move(path)), files_(files) {}

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    if (sameName(name, kCustom)) throw Error(ErrorNumber::permissionDenied);
    std::unique_ptr<OpenFolder> subfolder = Passing::openSubfolder(name);
    if (!sameName(name, kAutomatic)) return subfolder;
    return std::make_unique<JumpLists>(std::move(subfolder), path_ + "/" + name, files_);
  }

  void removeFolder(const std::string& name) override {
    if (sameName(name, kAutomatic) || sameName(name, kCustom)) {
      throw Error(ErrorNumber::permissionDenied);
    }
    Passing::removeFolder(name);
  }

 private:
  std::string path_;
  Files& files_;
};

std::string withoutClosingSeparators(std::string path) {
  while (path.ends_with('/') || path.ends_with('\\')) path.pop_back();
  return path;
}

}  // namespace

std::unique_ptr<OpenFolder> JumpListTree::openRoot(const std::string& path) {
  std::unique_ptr<OpenFolder> root = tree_.openRoot(path);
  const std::string bare = withoutClosingSeparators(path);
  if (folders_.path(SpecialFolder::recent) != bare) return root;
  return std::make_unique<RecentDocuments>(std::move(root), bare, files_);
}

}  // namespace zelvane::platform
