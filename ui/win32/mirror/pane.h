// A window that holds others, and lays them out.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "ui/win32/mirror/layout.h"
#include "ui/win32/mirror/window.h"

namespace zelvane::win32 {

// It owns the windows made in it, and hands back to them what they tell their parent.
class Pane : public Window {
 public:
  // Inside another one.
  explicit Pane(Pane& parent);

  // Makes a window in this pane, with `this` as the last argument.
  template <typename Made, typename... Arguments>
  Made& make(Arguments&&... arguments) {
    auto made = std::make_unique<Made>(std::forward<Arguments>(arguments)..., *this);
    Made& window = *made;
    children_.push_back(std::move(made));
    return window;
  }

  // What it shows, top to bottom.
  Box& body() { return body_; }

  // The system's colour behind its windows.
  int background() const { return background_; }
  void setBackground(int systemColour) { background_ = systemColour; }

  Size natural() const override { return body_.natural(); }
  int heightFor(int width) const override { return body_.heightFor(width); }
  void place(const Area& area) override;

  // Gives everything inside its place. To be called when something wants another.
  virtual void layOut();

  void onLookChanged() override;

 protected:
  // A window on its own.
  Pane(const Make& make, Look& look);

  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

  Size inside() const;

 private:
  HBRUSH answerColours(HDC surface, HWND child) const;
  void fill(HDC surface) const;
  void paint();

  int background_ = COLOR_WINDOW;
  Box body_;
  std::vector<std::unique_ptr<Window>> children_;
};

// A page: where it is lower than what stands on it, it scrolls, and follows the keys.
class ScrollPane : public Pane {
 public:
  explicit ScrollPane(Pane& parent);

  void layOut() override;
  void onFocusBelow(HWND below) override;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void scrollTo(int top);
  int wanted(WORD action) const;

  int top_ = 0;  // how far the top of the page is above the window's
};

}  // namespace zelvane::win32
