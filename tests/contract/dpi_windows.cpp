// The window when the resolution changes: it is dragged to another monitor, or its user wants
// everything bigger.
#include <map>
#include <string>

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/contract/shell_bed_windows.h"
#include "tests/support/windows/gdi_objects.h"

namespace zelvane::test {
namespace {

constexpr UINT_PTR kLargeScreen = 1;

// No window is larger than the screen, if nobody says that it may.
LRESULT CALLBACK allowAnySize(HWND handle, UINT message, WPARAM word, LPARAM value, UINT_PTR,
                              DWORD_PTR) {
  const LRESULT answer = DefSubclassProc(handle, message, word, value);
  if (message == WM_GETMINMAXINFO) {
    reinterpret_cast<MINMAXINFO*>(value)->ptMaxTrackSize = {10'000, 10'000};
  }
  return answer;
}

class Win32DpiTest : public Win32ShellTest {
 protected:
  Win32DpiTest() { SetWindowSubclass(shell.handle(), allowAnySize, kLargeScreen, 0); }
  ~Win32DpiTest() override { RemoveWindowSubclass(shell.handle(), allowAnySize, kLargeScreen); }

  // Where a window lies in the one above it, and how high its letters are.
  struct Looks {
    RECT place{};
    LONG letters = 0;

    int width() const { return static_cast<int>(place.right - place.left); }
    int height() const { return static_cast<int>(place.bottom - place.top); }
    friend bool operator==(const Looks& one, const Looks& other) {
      return EqualRect(&one.place, &other.place) && one.letters == other.letters;
    }
  };

  static RECT placeOnScreen(HWND handle) {
    RECT place{};
    GetWindowRect(handle, &place);
    return place;
  }

  static Looks looksOf(HWND handle) {
    Looks looks{placeOnScreen(handle)};
    MapWindowPoints(nullptr, GetParent(handle), reinterpret_cast<POINT*>(&looks.place), 2);
    LOGFONTW font{};
    const auto used = reinterpret_cast<HFONT>(SendMessageW(handle, WM_GETFONT, 0, 0));
    if (GetObjectW(used, sizeof font, &font) != 0) looks.letters = -font.lfHeight;
    return looks;
  }
  Looks looksOf(const controls::Control& control) const { return looksOf(handleOf(control)); }

  // Of all windows but those that nobody sees even when their page is in front, as the arrows that
  // a row of tabs has for when it is too narrow.
  std::map<HWND, Looks> layout() const {
    std::map<HWND, Looks> all;
    for (const HWND handle : allWindows()) {
      const bool isOurs = win32::Window::of(handle) != nullptr;
      const bool isSeen = (GetWindowLongPtrW(handle, GWL_STYLE) & WS_VISIBLE) != 0;
      if (isOurs || isSeen) all[handle] = looksOf(handle);
    }
    return all;
  }

  // As the system does it, with the place that it suggests.
  void change(UINT dpi, RECT suggested) {
    SendMessageW(shell.handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&suggested));
  }

  // With the place that the system would suggest: the same corner, and the size in proportion.
  void change(UINT dpi) {
    const RECT now = placeOnScreen(shell.handle());
    const auto scaled = [&](LONG length) {
      return MulDiv(static_cast<int>(length), static_cast<int>(dpi), static_cast<int>(look.dpi()));
    };
    change(dpi, {now.left, now.top, now.left + scaled(now.right - now.left),
                 now.top + scaled(now.bottom - now.top)});
  }
};

TEST_F(Win32DpiTest, TheWindowTakesThePlaceThatIsSuggested) {
  const RECT suggested{10, 20, 1210, 1320};

  change(192, suggested);

  const RECT place = placeOnScreen(shell.handle());
  EXPECT_TRUE(EqualRect(&place, &suggested));
  EXPECT_EQ(look.dpi(), 192U);
}

TEST_F(Win32DpiTest, AllLettersAndAllThatIsMadeOfThemGrow) {
  const auto before = layout();

  change(192);

  for (const auto& [handle, now] : layout()) {
    const Looks& then = before.at(handle);
    EXPECT_NEAR(static_cast<double>(now.letters), static_cast<double>(then.letters) * 2, 1);
    const win32::Window* face = win32::Window::of(handle);
    if (face == nullptr || face->control() == nullptr) continue;
    EXPECT_GE(now.height() * 10, then.height() * 16) << face->control()->name();
  }
}

TEST_F(Win32DpiTest, PicturesGrow) {
  const Looks icon = looksOf(window.mainPage.Image2);

  change(192);

  EXPECT_EQ(looksOf(window.mainPage.Image2).width(), icon.width() * 2);
  EXPECT_EQ(looksOf(window.mainPage.Image2).height(), icon.height() * 2);
}

TEST_F(Win32DpiTest, NoCaptionIsCutAtAnyResolution) {
  for (const UINT dpi : {120U, 144U, 168U, 192U, 240U, 288U, 96U}) {
    change(dpi);

    for (const controls::Control* control : controlsWithAFace()) {
      const win32::Window* face = win32::Window::of(handleOf(*control));
      // What is in a frame breaks its lines where there is no room.
      if (!face->isShown() || dynamic_cast<const controls::Frame*>(control) != nullptr) continue;
      const Looks looks = looksOf(face->handle());
      EXPECT_GE(looks.width(), face->natural().width) << control->name() << " at " << dpi;
      EXPECT_GE(looks.height(), face->natural().height) << control->name() << " at " << dpi;
    }
  }
}

TEST_F(Win32DpiTest, BackAtTheFirstResolutionEverythingIsAsItWas) {
  const RECT place = placeOnScreen(shell.handle());
  const auto before = layout();

  change(240);
  change(144);
  change(96, place);

  EXPECT_TRUE(layout() == before);
}

TEST_F(Win32DpiTest, ManyChangesLeaveNoFontAndNoPictureBehind) {
  change(192);
  change(96);
  const std::size_t before = gdiObjects();

  for (int times = 0; times < 10; ++times) {
    change(192);
    change(96);
  }

  EXPECT_GT(before, 0U);
  EXPECT_EQ(gdiObjects(), before);
}

}  // namespace
}  // namespace zelvane::test
