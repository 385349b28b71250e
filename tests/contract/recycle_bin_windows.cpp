#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include <windows.h>
#include <objbase.h>
#include <shellapi.h>

#include "platform/windows/long_path.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_recycle_bin.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/contract/recycle_bin_contract.h"
#include "tests/support/remove_tree.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

using platform::plainText;
using platform::WindowsRecycleBin;

bool isEmpty() {
  SHQUERYRBINFO info{};
  info.cbSize = sizeof info;
  return FAILED(SHQueryRecycleBinW(nullptr, &info)) || info.i64NumItems == 0;
}

// The bin that the shell has: under Wine the trash of the Unix home, which has to be a throw-away
// one. A bin with anything in it is not the tests' own, and they do not touch it.
class WindowsRecycleBinBed : public RecycleBinBed {
 public:
  WindowsRecycleBinBed() {
    if (!isEmpty()) throw std::runtime_error("this recycle bin is somebody's");
  }
  ~WindowsRecycleBinBed() override {
    for (const std::string& name : refusing_) {
      removeTree(platform::wideText(trash() + "\\files\\" + name));
      removeTree(platform::wideText(trash() + "\\info\\" + name + ".trashinfo"));
    }
  }

  platform::RecycleBin& bin() override { return bin_; }
  void put(const std::string& name, std::size_t bytes) override {
    makeFile(folder_ / name, std::string(bytes, 'x'));
    discard(folder_ / name);
  }
  // Wine has one bin for all drives.
  void putFromOtherVolume(const std::string& name, std::size_t bytes) override { put(name, bytes); }
  // Wine never erases a folder that is in it.
  void putRefusing(const std::string& name) override {
    refusing_.push_back(name);
    makeFolders(folder_ / name);
    discard(folder_ / name);
  }
  bool has(const std::string& name) const override {
    return isThere(trash() + "\\files\\" + name) &&
           isThere(trash() + "\\info\\" + name + ".trashinfo");
  }
  std::string whyNoRefusals() const override {
    return runsUnderWine() ? "" : "nothing is known that this bin would refuse to erase";
  }

 private:
  static std::string trash() {
    const wchar_t* home = _wgetenv(L"WINEHOMEDIR");
    if (home == nullptr) throw std::runtime_error("where the bin is, only Wine tells");
    // Begins with "\??\", as the system itself writes what programs begin with "\\?\".
    return "\\\\?\\" + plainText(home).substr(4) + "\\.local\\share\\Trash";
  }

  static void discard(const std::string& path) {
    std::wstring list = platform::wideText(path);
    list.push_back(L'\0');
    SHFILEOPSTRUCTW wish{};
    wish.wFunc = FO_DELETE;
    wish.pFrom = list.c_str();
    wish.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    if (SHFileOperationW(&wish) != 0) throw std::runtime_error("not discarded: " + path);
  }

  ThrowAwayFolder folder_;
  std::vector<std::string> refusing_;
  WindowsRecycleBin bin_{[] { return nullptr; }};
};

INSTANTIATE_TEST_SUITE_P(Windows, RecycleBinContract,
                         testing::Values([]() -> std::unique_ptr<RecycleBinBed> {
                           return std::make_unique<WindowsRecycleBinBed>();
                         }));

TEST(WindowsRecycleBin, EventsAreDeliveredBeforeAndAfterTheShellIsAtWork) {
  WindowsRecycleBinBed bed;

  bed.empty();

  EXPECT_EQ(bed.pump.calls(), 2);
}

}  // namespace
}  // namespace zelvane::test
