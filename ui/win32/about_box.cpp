#include "ui/win32/about_box.h"

#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/label_window.h"

namespace zelvane::win32 {

class AboutBox::BoxWindow : public FormWindow {
 public:
  BoxWindow(about::AboutPage& page, FormWindow& behind, HWND owner, Look& look)
      : FormWindow(page.frmAbout, owner, look), page_(page), behind_(behind) {
    body().setMargins(Gap::large);
    body().add(make<LabelWindow>(page.lblCopyRight));
    ok_ = &make<ButtonWindow>(page.cmdOK);
    body().add(*ok_, {.across = Across::end});
    finish();
    fit();
  }

  void showAgain(HWND owner) {
    behind_.setBlocked(true);
    SetWindowLongPtrW(handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    fit();
    if (isShown()) {  // as it is when it has just been made
      SetForegroundWindow(handle());
      SetFocus(ok_->handle());
    }
  }

  bool onKey(const MSG& message) override {
    if (message.message != WM_KEYDOWN) {
      return false;
    }
    switch (message.wParam) {
      case VK_RETURN:
        page_.cmdOK.click();
        return true;
      case VK_ESCAPE:
        page_.frmAbout.unload(controls::UnloadMode::controlMenu);
        return true;
      default:
        return false;
    }
  }

 protected:
  // It is told before it goes: only a window that can be used is handed the keys then.
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override {
    if (message == WM_SHOWWINDOW && value == 0 && word == FALSE) {
      behind_.setBlocked(false);
    }
    return FormWindow::onMessage(message, word, value);
  }

 private:
  about::AboutPage& page_;
  FormWindow& behind_;
  ButtonWindow* ok_ = nullptr;
};

AboutBox::AboutBox(about::AboutPage& page, controls::OpenBoxes& boxes, FormWindow& window)
    : page_(page), boxes_(boxes), window_(window) {
  win32::follow(page.frmAbout, window, [this] { follow(); });
}

AboutBox::~AboutBox() = default;

HWND AboutBox::handle() const { return box_ ? box_->handle() : nullptr; }

HWND AboutBox::owner() const {
  const HWND behind = window_.handle();
  return IsWindowVisible(behind) && !IsIconic(behind) ? behind : nullptr;
}

void AboutBox::follow() {
  const bool visible = page_.frmAbout.visible();
  if (visible == opening_.has_value()) {
    return;
  }
  if (!visible) {
    opening_.reset();
    return;
  }
  opening_.emplace(boxes_);
  if (!box_) {
    box_ = std::make_unique<BoxWindow>(page_, window_, owner(), look_);
  }
  box_->showAgain(owner());
}

}  // namespace zelvane::win32
