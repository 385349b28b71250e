// A window on the screen.
#pragma once

#include "core/controls/form.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Caption, visible and minimised go both ways. The close box asks the form to unload, and the
// window stays if the form does; the end of the session tells it to, once that is certain.
class FormWindow : public Pane {
 public:
  FormWindow(controls::Form& control, Look& look);
  ~FormWindow() override;

  // Gives the window the size of what it shows, in the middle of the screen, as far as that goes.
  void fit();

  void setTip(HWND tool, const std::wstring& text) override;

  // What the keys do before they come to a control. True when that was all.
  virtual bool onKey(const MSG& /*message*/) { return false; }

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void showControl();
  void onSize(WPARAM how);
  void onActivate(WPARAM how);
  void onLayoutAsked();
  void onDpi(UINT dpi, const RECT& wanted);
  void adopt(UINT dpi);
  SIZE withBorder(Size inside) const;

  controls::Form& control_;
  Look& ownLook_;
  HWND tips_;
  HWND focused_ = nullptr;  // who had the keys when the window lost them
};

}  // namespace zelvane::win32
