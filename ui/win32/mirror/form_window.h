// A window on the screen.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include "core/controls/form.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Caption, visible and minimised go both ways. The close box asks the form to unload, and the
// window stays if the form does; the end of the session tells it to, once that is certain.
class FormWindow : public Pane {
 public:
  FormWindow(controls::Form& control, Look& look);
  ~FormWindow() override;

  // While it is blocked the user can do nothing in it, whatever the form says.
  void setBlocked(bool blocked);

  // Gives the window the size of what it shows, in the middle of the screen, as far as that goes.
  void fit();

  // Makes the windows that are not seen first, and tells tips, screen readers and other programs
  // what they want to know; the window's own name comes last, so that whoever finds it finds the
  // rest as well. The window does all this by itself as soon as it has been drawn; who cannot wait
  // for that calls it before.
  void finish();

  void layOut() override;
  void askForLayout() override;
  void setTip(HWND tool, const std::wstring& text) override;

  // Shows the tip of what the pointer rests on. To be told of each message of the mouse to anything
  // in the window, because finding that out by itself would make every other message slower.
  void followPointer(MSG& message);

  // Calls `handle` with what comes with each such message to the window: for ports that are told of
  // something by a window.
  void answer(UINT message, std::function<void(WPARAM, LPARAM)> handle) {
    answers_[message] = std::move(handle);
  }

  // What the keys do before they come to a control. True when that was all.
  virtual bool onKey(const MSG& /*message*/) { return false; }

 protected:
  // A box, with a frame that stays as it is. It stands before `owner`, or by itself where that is
  // null.
  FormWindow(controls::Form& control, HWND owner, Look& look);

  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;
  bool isSettled() const override { return settled_; }

 private:
  FormWindow(controls::Form& control, const Make& make, HWND owner, Look& look);
  void showControl();
  void onSize(WPARAM how);
  void onActivate(WPARAM how);
  void onLayoutAsked();
  void finishSome();
  void makeTips();
  void fitTips() const;
  void onDpi(UINT dpi, const RECT& wanted);
  void adopt(UINT dpi);
  SIZE withBorder(Size inside) const;

  const Make frame_;
  controls::Form& control_;
  Look& ownLook_;
  HWND tips_ = nullptr;
  HWND focused_ = nullptr;  // who had the keys when the window lost them
  bool blocked_ = false;
  bool layoutAsked_ = false;
  bool settled_ = false;
  std::map<UINT, std::function<void(WPARAM, LPARAM)>> answers_;
};

}  // namespace zelvane::win32
