#include "platform/error.h"
#include "platform/memory/faulty_files.h"
#include "platform/memory/memory_files.h"
#include "tests/contract/files_contract.h"

namespace zelvane::test {
namespace {

using platform::MemoryNode;

class MemoryFilesBed : public FilesBed {
 public:
  MemoryFilesBed() { fileSystem_.addFolder("/folder"); }

  platform::Files& files() override { return files_; }
  std::string path(const std::string& name) const override { return "/folder/" + name; }
  void addFile(const std::string& name, const std::string& content) override {
    fileSystem_.addFile(path(name), content);
  }
  void addFolder(const std::string& name) override { fileSystem_.addFolder(path(name)); }
  void addLink(const std::string& name, const std::string& target) override {
    fileSystem_.addLink(path(name), target);
  }
  void addSocket(const std::string& name) override { fileSystem_.addSocket(path(name)); }
  void protectFolder(const std::string& name) override {
    fileSystem_.addFolder(path(name), {.foreign = true});
  }
  std::optional<std::string> content(const std::string& name) const override {
    return fileSystem_.content(path(name));
  }
  bool isLink(const std::string& name) const override {
    const MemoryNode* node = fileSystem_.find(path(name));
    return node != nullptr && node->kind == MemoryNode::Kind::link;
  }
  std::size_t entries(const std::string& folder) const override {
    return fileSystem_.find(path(folder))->children.size();
  }

 private:
  platform::MemoryFileSystem fileSystem_;
  platform::MemoryFiles files_{fileSystem_};
};

INSTANTIATE_TEST_SUITE_P(Memory, FilesContract, testing::Values([]() -> std::unique_ptr<FilesBed> {
                           return std::make_unique<MemoryFilesBed>();
                         }));

// With no fault set a decorator is like what it wraps.
class FaultyFilesBed : public MemoryFilesBed {
 public:
  platform::Files& files() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyFiles faulty_{MemoryFilesBed::files(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, FilesContract, testing::Values([]() -> std::unique_ptr<FilesBed> {
                           return std::make_unique<FaultyFilesBed>();
                         }));

TEST(MemoryFiles, AFullDiskRefusesEveryWrite) {
  platform::MemoryFileSystem fileSystem;
  platform::MemoryFiles files(fileSystem);
  const auto file = files.createBeside("/file");

  files.fillDisk();

  EXPECT_THROW(file->write("x"), platform::Error);
}

}  // namespace
}  // namespace zelvane::test
