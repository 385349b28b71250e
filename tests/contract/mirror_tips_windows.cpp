// What explains a control while the pointer rests on it.
#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "core/controls/check_box.h"
#include "tests/contract/mirror_bed_windows.h"
#include "ui/win32/message_loop.h"
#include "ui/win32/mirror/check_box_window.h"

namespace zelvane::test {
namespace {

// Takes the place of what the form's tips do with messages, and keeps those of the pointer.
class HeardByTips {
 public:
  explicit HeardByTips(HWND form) : tips_(tipsOf(form)) {
    SetWindowSubclass(tips_, hear, 0, reinterpret_cast<DWORD_PTR>(this));
  }
  ~HeardByTips() { RemoveWindowSubclass(tips_, hear, 0); }
  HeardByTips(const HeardByTips&) = delete;
  HeardByTips& operator=(const HeardByTips&) = delete;

  HWND window() const { return window_; }
  int times() const { return times_; }

 private:
  static HWND tipsOf(HWND form) {
    HWND tips = nullptr;
    do {
      tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
    } while (tips != nullptr && GetWindow(tips, GW_OWNER) != form);
    return tips;
  }
  static LRESULT CALLBACK hear(HWND handle, UINT message, WPARAM word, LPARAM value, UINT_PTR,
                               DWORD_PTR heard) {
    if (message != TTM_RELAYEVENT) return DefSubclassProc(handle, message, word, value);
    auto& ear = *reinterpret_cast<HeardByTips*>(heard);
    ear.window_ = reinterpret_cast<const MSG*>(value)->hwnd;
    ++ear.times_;
    return 0;
  }

  HWND tips_;
  HWND window_ = nullptr;
  int times_ = 0;
};

TEST_F(Win32MirrorTest, ThePointersWayOverAControlReachesTheTips) {
  controls::CheckBox box{page, "chkOne", "One"};
  const auto& face = make<win32::CheckBoxWindow>(box);
  const HeardByTips tips(window.handle());
  MSG move{face.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {}};
  MSG key{face.handle(), WM_KEYUP, VK_SHIFT, 0, 0, {}};

  win32::deliver(move);
  win32::deliver(key);

  EXPECT_EQ(tips.window(), face.handle());
  EXPECT_EQ(tips.times(), 1);
}

}  // namespace
}  // namespace zelvane::test
