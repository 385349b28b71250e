#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include <windows.h>
#include <commctrl.h>
#include <ole2.h>
#include <shlobj.h>

#include "platform/windows/wide_text.h"
#include "tests/contract/dialogs_contract.h"
#include "tests/contract/modal_user_windows.h"
#include "tests/support/throw_away_folder.h"
#include "ui/win32/win32_dialogs.h"

namespace zelvane::test {
namespace {

using platform::MessageIcon;

constexpr int kText = 65'535;    // of a message box
constexpr int kFileName = 1148;  // of the file question: where the name is typed

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

// The sign of a box is a static picture, and it is the system's own.
MessageIcon signOf(HWND box) {
  const std::map<HICON, MessageIcon> icons{
      {LoadIconW(nullptr, IDI_INFORMATION), MessageIcon::information},
      {LoadIconW(nullptr, IDI_EXCLAMATION), MessageIcon::exclamation},
      {LoadIconW(nullptr, IDI_ERROR), MessageIcon::critical}};
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const auto icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
    const auto found = icons.find(icon);
    if (found != icons.end()) {
      return found->second;
    }
  }
  return MessageIcon::none;
}

platform::MessageBox read(HWND box) {
  return {platform::plainText(textOf(GetDlgItem(box, kText))), platform::plainText(textOf(box)),
          signOf(box)};
}

// True when it is the selected one in the tree from then on.
bool selectFolder(HWND box, const std::filesystem::path& folder) {
  SendMessageW(box, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
  HWND tree = nullptr;
  EnumChildWindows(
      box,
      [](HWND child, LPARAM parameter) -> BOOL {
        wchar_t name[32] = L"";
        GetClassNameW(child, name, 32);
        const bool isTree = std::wstring_view(name) == WC_TREEVIEWW;
        *reinterpret_cast<HWND*>(parameter) = isTree ? child : nullptr;
        return isTree ? FALSE : TRUE;
      },
      reinterpret_cast<LPARAM>(&tree));
  wchar_t name[MAX_PATH] = L"";
  TVITEMW item{};
  item.mask = TVIF_TEXT;
  item.hItem = TreeView_GetSelection(tree);
  item.pszText = name;
  item.cchTextMax = MAX_PATH;
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return name == folder.filename();
}

// The folder question needs it, as the program has it.
class Ole {
 public:
  Ole() { OleInitialize(nullptr); }
  ~Ole() { OleUninitialize(); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
};

class Win32DialogsBed : public DialogsBed {
 public:
  platform::Dialogs& dialogs() override { return dialogs_; }

  void willClose() override {
    user_.atNextDialog([this](HWND box) {
      lastBox_ = read(box);
      PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
  }

  void willChoose(const std::string& path) override {
    user_.atNextDialog([this, path](HWND box) {
      const std::wstring name = platform::wideText(path);
      if (SetDlgItemTextW(box, kFileName, name.c_str()) == FALSE &&
          !selectFolder(box, std::filesystem::path(name))) {
        willChoose(path);  // the question is still filling its tree of folders
        return;
      }
      PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
  }

  void willCancel() override {
    user_.atNextDialog([](HWND box) { PostMessageW(box, WM_COMMAND, IDCANCEL, 0); });
  }

  platform::MessageBox lastBox() const override { return lastBox_; }
  std::string folder() const override { return folder_.path().string(); }

 private:
  Ole ole_;
  ThrowAwayFolder folder_;
  controls::OpenBoxes boxes_;
  win32::Win32Dialogs dialogs_{boxes_};
  ModalUser user_;
  platform::MessageBox lastBox_;
};

std::unique_ptr<DialogsBed> makeWin32DialogsBed() { return std::make_unique<Win32DialogsBed>(); }

INSTANTIATE_TEST_SUITE_P(Win32, DialogsContract, testing::Values(makeWin32DialogsBed));

TEST(Win32Dialogs, ABoxIsCountedAsOpenUntilItIsClosed) {
  controls::OpenBoxes boxes;
  win32::Win32Dialogs dialogs(boxes);
  ModalUser user;
  bool openMeanwhile = false;
  int allClosed = 0;
  boxes.allClosed.connect([&] { ++allClosed; });
  user.atNextDialog([&](HWND box) {
    openMeanwhile = boxes.any();
    PostMessageW(box, WM_CLOSE, 0, 0);
  });

  dialogs.show({"text", "title", MessageIcon::none});

  EXPECT_TRUE(openMeanwhile);
  EXPECT_FALSE(boxes.any());
  EXPECT_EQ(allClosed, 1);
}

TEST(Win32Dialogs, ABoxBelongsToTheWindowThatWasAttached) {
  controls::OpenBoxes boxes;
  win32::Win32Dialogs dialogs(boxes);
  const HWND window =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  dialogs.attach(window);
  ModalUser user;
  HWND owner = nullptr;
  bool usableMeanwhile = true;
  user.atNextDialog([&](HWND box) {
    owner = GetWindow(box, GW_OWNER);
    usableMeanwhile = IsWindowEnabled(window) != FALSE;
    PostMessageW(box, WM_CLOSE, 0, 0);
  });

  dialogs.show({"text", "title", MessageIcon::none});

  EXPECT_EQ(owner, window);
  EXPECT_FALSE(usableMeanwhile);
  DestroyWindow(window);
}

}  // namespace
}  // namespace zelvane::test
