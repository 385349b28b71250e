// A form in which tests make the windows of their controls.
#pragma once

#include <gtest/gtest.h>

#include "core/controls/form.h"
#include "ui/win32/mirror/form_window.h"

namespace zelvane::test {

class Win32MirrorTest : public testing::Test {
 protected:
  Win32MirrorTest() { window.finish(); }

  struct Count {
    explicit Count(controls::Event<>& event) {
      event.connect([this] { ++times; });
    }
    int times = 0;
  };

  static LRESULT send(const win32::Window& window, UINT message, WPARAM word = 0,
                      LPARAM value = 0) {
    return SendMessageW(window.handle(), message, word, value);
  }
  static bool isEnabled(const win32::Window& window) {
    return IsWindowEnabled(window.handle()) != FALSE;
  }
  // A window in the form, with some room: a click beside a window is none.
  template <typename Made, typename... Arguments>
  Made& make(Arguments&... arguments) {
    Made& made = window.make<Made>(arguments...);
    made.place({0, 0, 300, 200});
    return made;
  }
  // As a control of the system's tells its parent.
  template <typename Notice>
  static LRESULT notify(const win32::Window& from, UINT code, Notice notice) {
    auto& header = reinterpret_cast<NMHDR&>(notice);
    header.hwndFrom = from.handle();
    header.code = code;
    return SendMessageW(GetParent(from.handle()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
  }

  controls::Page page;
  controls::Form form{page, "frmTest", "A window"};
  win32::Look look;
  win32::FormWindow window{form, look};
};

}  // namespace zelvane::test
