#include "platform/memory/faulty_special_folders.h"
#include "platform/memory/memory_special_folders.h"
#include "tests/contract/special_folders_contract.h"

namespace zelvane::test {
namespace {

using platform::SpecialFolder;

class MemorySpecialFoldersBed : public SpecialFoldersBed {
 public:
  MemorySpecialFoldersBed() { fileSystem_.addFolder(home()); }

  platform::SpecialFolders& folders() override { return folders_; }
  std::string home() const override { return "/home/user"; }
  void makeFolder(const std::string& path) override { fileSystem_.addFolder(path); }
  void makeFile(const std::string& path) override { fileSystem_.addFile(path); }
  void removeFolder(const std::string& path) override { fileSystem_.vanish(path); }
  void setDocuments(const std::string& path) override {
    folders_.set(SpecialFolder::personal, path);
  }
  void setTemporary(const std::string& path) override { folders_.setTemporary(path); }

 private:
  platform::MemoryFileSystem fileSystem_;
  platform::MemorySpecialFolders folders_{fileSystem_};
};

INSTANTIATE_TEST_SUITE_P(Memory, SpecialFoldersContract,
                         testing::Values([]() -> std::unique_ptr<SpecialFoldersBed> {
                           return std::make_unique<MemorySpecialFoldersBed>();
                         }));

// With no fault set a decorator is like what it wraps.
class FaultySpecialFoldersBed : public MemorySpecialFoldersBed {
 public:
  platform::SpecialFolders& folders() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultySpecialFolders faulty_{MemorySpecialFoldersBed::folders(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, SpecialFoldersContract,
                         testing::Values([]() -> std::unique_ptr<SpecialFoldersBed> {
                           return std::make_unique<FaultySpecialFoldersBed>();
                         }));

TEST(MemorySpecialFolders, AreNowhereAtFirst) {
  const platform::MemoryFileSystem fileSystem;
  const platform::MemorySpecialFolders folders(fileSystem);

  EXPECT_EQ(folders.path(SpecialFolder::recent), std::nullopt);
  EXPECT_EQ(folders.temporaryPath(), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
