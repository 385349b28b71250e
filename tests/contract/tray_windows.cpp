#include <map>
#include <utility>

#include <gtest/gtest.h>

#include "core/controls/picture.h"
#include "platform/windows/wide_text.h"
#include "tests/contract/tray_contract.h"
#include "ui/win32/mirror/picture_window.h"
#include "ui/win32/mirror/popup_menu.h"
#include "ui/win32/win32_tray.h"

namespace zelvane::test {
namespace {

using Names = std::vector<std::string>;

// A notification area as the shell keeps it, for a system without a screen has none.
class NotificationArea {
 public:
  bool operator()(DWORD message, NOTIFYICONDATAW& icon) {
    const Key key{icon.hWnd, icon.uID};
    if (!open || (message == NIM_ADD) == icons.contains(key)) return false;
    icons[key] = icon;
    if (message == NIM_DELETE) icons.erase(key);
    return true;
  }

  using Key = std::pair<HWND, UINT>;
  std::map<Key, NOTIFYICONDATAW> icons;
  bool open = true;
};

// The user looks which menus are open, and closes them.
class MenuWatcher {
 public:
  MenuWatcher() : timer_(SetTimer(nullptr, 0, 10, look)) { open = 0; }
  ~MenuWatcher() { KillTimer(nullptr, timer_); }
  MenuWatcher(const MenuWatcher&) = delete;
  MenuWatcher& operator=(const MenuWatcher&) = delete;

  static inline int open = 0;

 private:
  static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    open += (thread.flags & GUI_INMENUMODE) != 0 ? 1 : 0;
    EndMenu();
  }

  UINT_PTR timer_;
};

class Win32TrayBed : public TrayBed {
 public:
  Win32TrayBed() {
    window_.finish();
    tray_.attach(window_, mnuMain_);
  }

  platform::Tray& tray() override { return tray_; }

  Names seen() override {
    Names tips;
    for (const auto& [key, icon] : area_.icons) {
      tips.push_back(platform::plainText(icon.szTip));
    }
    return tips;
  }

  void doubleClick() override {
    for (const LPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
      use(message);
    }
  }
  void rightClick() override {
    for (const LPARAM message : {WM_MOUSEMOVE, WM_RBUTTONDOWN, WM_RBUTTONUP}) {
      use(message);
    }
  }

  // A taskbar that comes back without a place for icons.
  void takePlaceAway() override {
    area_.icons.clear();
    area_.open = false;
    announceTaskbar();
  }
  void givePlace() override {
    area_.open = true;
    announceTaskbar();
  }

  Names opened(const std::string& menuName) override {
    const MenuWatcher watcher;
    tray_.showMenu(menuName);
    return MenuWatcher::open == 0 ? Names{} : Names{mnuMain_.name()};
  }

 protected:
  void use(LPARAM message) {
    for (const auto& [key, icon] : std::map(area_.icons)) {
      SendMessageW(icon.hWnd, icon.uCallbackMessage, icon.uID, message);
    }
  }

  void announceTaskbar() const {
    SendMessageW(window_.handle(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  }

  NotificationArea area_;
  controls::Page page_;
  controls::Form form_{page_, "frmMain", "A window"};
  controls::Picture picOther_{page_, "picOther", controls::Picture::Image::broom};
  controls::MenuItem mnuFirst_{page_, "mnuFirst", "First"};
  controls::Menu mnuMain_{page_, "mnuMain", "Menu", {&mnuFirst_}};
  win32::Look look_;
  win32::FormWindow window_{form_, look_};
  win32::PictureWindow& picture_ = window_.make<win32::PictureWindow>(picOther_, 32);
  win32::Win32Tray tray_{
      [this](DWORD message, NOTIFYICONDATAW& icon) { return area_(message, icon); }};
};

INSTANTIATE_TEST_SUITE_P(Win32, TrayContract, testing::Values([]() -> std::unique_ptr<TrayBed> {
                           return std::make_unique<Win32TrayBed>();
                         }));

class Win32TrayTest : public testing::Test, protected Win32TrayBed {
 protected:
  platform::NotificationRecord record(const std::string& tip) {
    platform::NotificationRecord record;
    record.size = sizeof record;
    record.window = tray_.windowHandle("frmMain");
    record.identifier = 1;
    record.flags = 7;
    record.callbackMessage = 517;
    record.icon = tray_.iconHandle("frmMain");
    std::ranges::copy(tip, record.tip.begin());
    return record;
  }

  const NOTIFYICONDATAW& icon() const { return area_.icons.begin()->second; }
};

TEST_F(Win32TrayTest, TheSystemIsToldTheRecordsValuesInItsOwnStructure) {
  tray_.add(record("Zelvane v1.0"));

  ASSERT_EQ(area_.icons.size(), 1U);
  EXPECT_EQ(icon().cbSize, sizeof(NOTIFYICONDATAW));
  EXPECT_EQ(icon().hWnd, window_.handle());
  EXPECT_EQ(icon().uID, 1U);
  EXPECT_EQ(icon().uFlags, UINT{NIF_MESSAGE | NIF_ICON | NIF_TIP});
  ICONINFO picture{};
  EXPECT_TRUE(GetIconInfo(icon().hIcon, &picture));
  DeleteObject(picture.hbmColor);
  DeleteObject(picture.hbmMask);
}

TEST_F(Win32TrayTest, ARightClickOnTheWindowItselfIsNoneOnTheIcon) {
  std::vector<int> messages;
  tray_.whenUsed([&](int message) { messages.push_back(message); });
  tray_.add(record("Zelvane v1.0"));

  SendMessageW(window_.handle(), WM_RBUTTONUP, 0, MAKELPARAM(515, 517));

  EXPECT_EQ(messages, std::vector<int>{});
}

TEST_F(Win32TrayTest, ATaskbarThatIsNewAndStillHasTheIconGetsNoSecondOne) {
  tray_.add(record("Zelvane v1.0"));

  announceTaskbar();

  EXPECT_EQ(seen(), Names{"Zelvane v1.0"});
}

TEST_F(Win32TrayTest, AnIconThatWasRefusedIsTriedAgainWhenItIsAddedAgain) {
  area_.open = false;
  tray_.add(record("Zelvane v1.0"));
  area_.open = true;

  EXPECT_FALSE(tray_.add(record("Zelvane v1.0")));

  EXPECT_EQ(seen(), Names{"Zelvane v1.0"});
  EXPECT_TRUE(tray_.isShown());
}

TEST_F(Win32TrayTest, ATaskbarThatDiesTakesTheIconAlong) {
  tray_.add(record("Zelvane v1.0"));

  area_.icons.clear();

  EXPECT_FALSE(tray_.isShown());
}

TEST_F(Win32TrayTest, TheIconGoesWithTheTray) {
  {
    win32::Win32Tray other(
        [this](DWORD message, NOTIFYICONDATAW& icon) { return area_(message, icon); });
    other.add(record("Zelvane v1.0"));
    ASSERT_EQ(area_.icons.size(), 1U);
  }

  EXPECT_TRUE(area_.icons.empty());
}

TEST(Win32PopupMenu, ItemsAreAsTheirControls) {
  controls::Page page;
  controls::MenuItem shown(page, "mnuShow", "&Show");
  controls::MenuItem marked(page, "mnuMarked", "Marked", controls::MenuItem::Kind::markable);
  controls::MenuItem hidden(page, "mnuHidden", "Hidden");
  controls::MenuItem line(page, "mnuLine", "-");
  controls::MenuItem disabled(page, "mnuDisabled", "Disabled");
  controls::Menu menu(page, "mnuAll", "All", {&shown, &marked, &hidden, &line, &disabled});
  marked.setChecked(true);
  hidden.setVisible(false);
  disabled.setEnabled(false);

  const win32::PopupMenu popup(menu);

  const auto state = [&](UINT place) { return GetMenuState(popup.handle(), place, MF_BYPOSITION); };
  wchar_t caption[16] = L"";
  GetMenuStringW(popup.handle(), 0, caption, 16, MF_BYPOSITION);
  ASSERT_EQ(GetMenuItemCount(popup.handle()), 4);
  EXPECT_EQ(std::wstring(caption), L"&Show");
  EXPECT_EQ(state(0), UINT{MF_STRING});
  EXPECT_EQ(state(1), UINT{MF_CHECKED});
  EXPECT_NE(state(2) & MF_SEPARATOR, 0U);
  EXPECT_EQ(state(3), UINT{MF_GRAYED});
  EXPECT_EQ(GetMenuItemID(popup.handle(), 3), 5U);
}

}  // namespace
}  // namespace zelvane::test
