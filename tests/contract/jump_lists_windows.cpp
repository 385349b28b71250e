#include <algorithm>

#include <gtest/gtest.h>
#include <objbase.h>

#include "platform/shared/compound_file_writer.h"
#include "platform/shared/jump_list_tree.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::NamedStream;
using platform::SpecialFolder;

// The root is the shell's folder of recent documents.
class RecentDocumentsBed : public WindowsFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return tree_; }

 private:
  platform::WindowsSpecialFolders folders_{{.special = [this](SpecialFolder) { return root(); },
                                            .temporary = [] { return std::nullopt; },
                                            .kept = {}}};
  platform::WindowsFiles files_;
  platform::JumpListTree tree_{folders_, WindowsFolderTreeBed::tree(), files_};
};

INSTANTIATE_TEST_SUITE_P(WindowsRecent, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<RecentDocumentsBed>();
                         }));

std::vector<NamedStream> sorted(std::optional<std::vector<NamedStream>> streams) {
  std::ranges::sort(streams.value(), {}, &NamedStream::name);
  return *streams;
}

TEST(WindowsJumpLists, LinksAndListsWithoutPinsGoAndWhatIsPinnedStays) {
  RecentDocumentsBed bed;
  const std::string pinned = jumpList(4, {{"C:\\used"}, {"C:\\pinned", 0}});
  const std::string shorter = jumpList(4, {{"C:\\pinned", 0, 2}});
  bed.addFile("document.lnk");
  bed.addFile("CustomDestinations/28c8b86deab549a1.customDestinations-ms");
  bed.folder.write("root/AutomaticDestinations/used.automaticDestinations-ms",
                   jumpList(4, {{"C:\\used"}}));
  bed.folder.write("root/AutomaticDestinations/pinned.automaticDestinations-ms", pinned);
  bed.folder.write("root/AutomaticDestinations/damaged.automaticDestinations-ms", "damaged");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("document.lnk"));
  EXPECT_FALSE(bed.has("AutomaticDestinations/used.automaticDestinations-ms"));
  const std::string left =
      bed.folder.read("root/AutomaticDestinations/pinned.automaticDestinations-ms");
  EXPECT_EQ(sorted(platform::streamsIn(left)), sorted(platform::streamsIn(shorter)));
  EXPECT_EQ(left.find("used"), std::string::npos);
  EXPECT_EQ(left.find(std::string("u\0s\0e\0d", 7)), std::string::npos);
  EXPECT_TRUE(bed.has("AutomaticDestinations/damaged.automaticDestinations-ms"));
  EXPECT_TRUE(bed.has("CustomDestinations/28c8b86deab549a1.customDestinations-ms"));
}

// As the system's own library finds it.
std::string streamBySystem(const std::string& file, const std::string& name) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, file.size());
  std::ranges::copy(file, static_cast<char*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  ILockBytes* bytes = nullptr;
  EXPECT_EQ(CreateILockBytesOnHGlobal(memory, TRUE, &bytes), S_OK);
  constexpr DWORD kMode = STGM_READ | STGM_SHARE_EXCLUSIVE;
  IStorage* storage = nullptr;
  EXPECT_EQ(StgOpenStorageOnILockBytes(bytes, nullptr, kMode, nullptr, 0, &storage), S_OK);
  IStream* stream = nullptr;
  EXPECT_EQ(storage->OpenStream(platform::wideName(name).c_str(), nullptr, kMode, 0, &stream),
            S_OK);
  std::string content(1U << 20U, '\0');
  ULONG count = 0;
  EXPECT_EQ(stream->Read(content.data(), static_cast<ULONG>(content.size()), &count), S_OK);
  content.resize(count);
  stream->Release();
  storage->Release();
  bytes->Release();
  return content;
}

TEST(WindowsCompoundFiles, OfOursAreReadByTheSystem) {
  std::vector<NamedStream> streams{
      {"DestListPropertyStore", ""},     {"DestList", std::string(300000, 'x')},
      {"limit", std::string(4096, 'y')}, {"Below", std::string(4095, 'z')},
      {"a_", "between cases"},           {"ab", "in capitals"}};
  for (int number = 0; number < 300; ++number) {
    streams.push_back({std::to_string(number), std::string(static_cast<std::size_t>(number), '1')});
  }
  const std::string file = platform::compoundFile(streams);

  for (const auto& [name, content] : streams) EXPECT_EQ(streamBySystem(file, name), content);
}

}  // namespace
}  // namespace zelvane::test
