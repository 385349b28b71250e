// The About box on the screen.
#pragma once

#include <memory>
#include <optional>

#include "about/about_page.h"
#include "core/controls/open_boxes.h"
#include "ui/win32/mirror/form_window.h"

namespace zelvane::win32 {

// While the form is visible nothing can be done in the window behind it. It belongs to that window,
// unless that is out of sight and would take it along.
class AboutBox {
 public:
  // All outlive it.
  AboutBox(about::AboutPage& page, controls::OpenBoxes& boxes, FormWindow& window);
  AboutBox(const AboutBox&) = delete;
  AboutBox& operator=(const AboutBox&) = delete;
  ~AboutBox();

  // The window of the box, once it has been shown; else null.
  HWND handle() const;

 private:
  class BoxWindow;

  void follow();
  HWND owner() const;

  about::AboutPage& page_;
  controls::OpenBoxes& boxes_;
  FormWindow& window_;
  Look look_;  // of its own: it may be on a screen with another density
  // Made when it is first shown, and then kept: its own button closes it.
  std::unique_ptr<BoxWindow> box_;
  std::optional<controls::OpenBoxes::Opening> opening_;
};

}  // namespace zelvane::win32
