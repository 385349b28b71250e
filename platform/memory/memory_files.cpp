#include "platform/memory/memory_files.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

using Kind = MemoryNode::Kind;

// A file that somebody reads keeps its content for this reader, whatever replaces it meanwhile.
class MemoryReadStream : public ReadStream {
 public:
  explicit MemoryReadStream(std::string content) : content_(std::move(content)) {}

  std::string read(std::size_t limit) override {
    std::string piece = content_.substr(position_, limit);
    position_ += piece.size();
    return piece;
  }

 private:
  std::string content_;
  std::size_t position_ = 0;
};

class MemoryPendingFile : public PendingFile {
 public:
  MemoryPendingFile(MemoryFileSystem& fileSystem, MemoryNode& folder, std::string name,
                    const bool& diskIsFull)
      : fileSystem_(fileSystem), folder_(folder), name_(std::move(name)), diskIsFull_(diskIsFull) {}

  void write(std::string_view bytes) override {
    if (diskIsFull_) throw Error(ErrorNumber::diskFull);
    content_ += bytes;
  }

  void publish() override {
    assert(!published_);
    MemoryNode* node = fileSystem_.child(folder_, name_);
    if (node == nullptr) node = &fileSystem_.add(folder_, name_, Kind::file);
    if (node->kind == Kind::folder) throw Error(ErrorNumber::accessError);
    node->kind = Kind::file;
    node->file = {};
    node->content = content_;
    published_ = true;
  }

 private:
  MemoryFileSystem& fileSystem_;
  MemoryNode& folder_;
  std::string name_;
  const bool& diskIsFull_;
  std::string content_;
  bool published_ = false;
};

}  // namespace

bool MemoryFiles::exists(const std::string& path) const {
  return !path.empty() && fileSystem_.content(path).has_value();
}

std::unique_ptr<ReadStream> MemoryFiles::open(const std::string& path) const {
  const MemoryNode* node = path.empty() ? nullptr : fileSystem_.findTarget(path);
  if (node == nullptr) throw Error(ErrorNumber::fileNotFound);
  if (node->kind != Kind::file) throw Error(ErrorNumber::accessError);
  return std::make_unique<MemoryReadStream>(node->content);
}

std::string MemoryFiles::readWhole(const std::string& path, std::uint64_t limit) const {
  std::string content = open(path)->read(std::string::npos);
  if (content.size() > limit) throw Error(ErrorNumber::accessError);
  return content;
}

void MemoryFiles::remove(const std::string& path) {
  MemoryNode* node = path.empty() ? nullptr : fileSystem_.find(path);
  if (node == nullptr) throw Error(ErrorNumber::fileNotFound);
  if (node->kind == Kind::folder) throw Error(ErrorNumber::accessError);
  if (node->parent->folder.foreign) throw Error(ErrorNumber::permissionDenied);
  fileSystem_.remove(*node);
}

std::unique_ptr<PendingFile> MemoryFiles::createBeside(const std::string& target) {
  const std::size_t slash = target.rfind('/');
  if (slash == std::string::npos) throw Error(ErrorNumber::pathNotFound);
  std::string name = target.substr(slash + 1);
  if (name.empty() || name == "." || name == "..") throw Error(ErrorNumber::accessError);
  MemoryNode* folder = fileSystem_.findTarget(target.substr(0, slash));
  if (folder == nullptr || folder->kind != Kind::folder) throw Error(ErrorNumber::pathNotFound);
  if (folder->folder.foreign) throw Error(ErrorNumber::permissionDenied);
  return std::make_unique<MemoryPendingFile>(fileSystem_, *folder, std::move(name), diskIsFull_);
}

// Nothing in memory has permissions of its own.
std::unique_ptr<PendingFile> MemoryFiles::createInPlaceOf(const std::string& target) {
  const MemoryNode* node = target.empty() ? nullptr : fileSystem_.find(target);
  if (node == nullptr) throw Error(ErrorNumber::fileNotFound);
  if (node->kind != Kind::file) throw Error(ErrorNumber::accessError);
  return createBeside(target);
}

}  // namespace zelvane::platform
