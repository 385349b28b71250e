// The coloured log on the screen.
#include <windows.h>
#include <richedit.h>

#include "tests/contract/mirror_bed_windows.h"
#include "ui/win32/mirror/rich_log_window.h"

namespace zelvane::test {
namespace {

class Win32LogTest : public Win32MirrorTest {
 protected:
  COLORREF colourOfLine(int line) {
    const LRESULT first = send(log, EM_LINEINDEX, static_cast<WPARAM>(line));
    CHARRANGE range{static_cast<LONG>(first), static_cast<LONG>(first) + 1};
    send(log, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    CHARFORMATW format{};
    format.cbSize = sizeof format;
    send(log, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return format.crTextColor;
  }

  void writeARun() {
    control.setSelectionColour(controls::RichLog::Colour::blue);
    control.append("\r\nPath: /tmp/");
    control.setSelectionColour(controls::RichLog::Colour::green);
    control.append("\r\nFinished");
    control.setSelectionColour(controls::RichLog::Colour::black);
    control.append("\r\nDone");
  }

  controls::RichLog control{page, "rtfMessage"};
  win32::RichLogWindow& log = make<win32::RichLogWindow>(control);
};

TEST_F(Win32LogTest, ItShowsThePiecesInTheirColours) {
  writeARun();

  EXPECT_EQ(log.text(), L"\r\nPath: /tmp/\r\nFinished\r\nDone");
  EXPECT_EQ(colourOfLine(1), RGB(0, 0, 255));
  EXPECT_EQ(colourOfLine(2), RGB(0, 128, 0));
  EXPECT_EQ(colourOfLine(3), RGB(0, 0, 0));
}

TEST_F(Win32LogTest, OnADarkDesktopItsShadesAreLight) {
  using enum controls::RichLog::Colour;
  for (const auto colour : {black, blue, green}) {
    const COLORREF shade = win32::RichLogWindow::shade(colour, RGB(30, 30, 30));
    EXPECT_GT(GetRValue(shade) + GetGValue(shade) + GetBValue(shade), 3 * 128);
  }
}

TEST_F(Win32LogTest, AClearedLogIsEmptyAndShowsWhatComesAfter) {
  writeARun();

  control.clear();
  EXPECT_EQ(log.text(), L"");

  control.append("\r\nDone");
  EXPECT_EQ(log.text(), L"\r\nDone");
}

TEST_F(Win32LogTest, ItCannotBeTypedIntoAndTheTabKeyLeavesIt) {
  EXPECT_NE(GetWindowLongPtrW(log.handle(), GWL_STYLE) & ES_READONLY, 0);
  EXPECT_EQ(send(log, WM_GETDLGCODE) & DLGC_WANTTAB, 0);
}

}  // namespace
}  // namespace zelvane::test
