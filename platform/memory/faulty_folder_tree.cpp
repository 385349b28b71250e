#include "platform/memory/faulty_folder_tree.h"

#include <utility>

namespace zelvane::platform {
namespace {

class FaultyOpenFolder : public OpenFolder {
 public:
  FaultyOpenFolder(std::unique_ptr<OpenFolder> folder, std::string path, Faults& faults)
      : folder_(std::move(folder)), path_(std::move(path)), faults_(faults) {}

  FolderListing list(EventPump& pump) override {
    faults_.throwIfItFails(ErrorNumber::deviceIo, "OpenFolder::list", path_);
    return folder_->list(pump);
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    faults_.throwIfItFails(ErrorNumber::permissionDenied, "OpenFolder::openSubfolder", below(name));
    return std::make_unique<FaultyOpenFolder>(folder_->openSubfolder(name), below(name), faults_);
  }

  void removeFile(const std::string& name) override {
    faults_.throwIfItFails(ErrorNumber::permissionDenied, "OpenFolder::removeFile", below(name));
    folder_->removeFile(name);
  }

  void removeFolder(const std::string& name) override {
    faults_.throwIfItFails(ErrorNumber::accessError, "OpenFolder::removeFolder", below(name));
    folder_->removeFolder(name);
  }

 private:
  std::string below(const std::string& name) const { return path_ + "/" + name; }

  std::unique_ptr<OpenFolder> folder_;
  std::string path_;
  Faults& faults_;
};

}  // namespace

std::unique_ptr<OpenFolder> FaultyFolderTree::openRoot(const std::string& path) {
  faults_.throwIfItFails(ErrorNumber::pathNotFound, "FolderTree::openRoot", path);
  const std::string closed = path.substr(0, path.find_last_not_of('/') + 1);
  return std::make_unique<FaultyOpenFolder>(tree_.openRoot(path), closed, faults_);
}

}  // namespace zelvane::platform
