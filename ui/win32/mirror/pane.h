// A window that holds others, and lays them out.
#pragma once

#include <functional>
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
  explicit Pane(Pane& parent) : Pane(parent, WS_VISIBLE, Making::now) {}

  // Makes a window in this pane, with `this` as the last argument.
  template <typename Made, typename... Arguments>
  Made& make(Arguments&&... arguments) {
    auto made = std::make_unique<Made>(std::forward<Arguments>(arguments)..., *this);
    Made& window = *made;
    children_.push_back(std::move(made));
    return window;
  }

  // Of two windows in this pane that are not made yet: `after` will not be made before `first`.
  // The keys visit windows in the order in which they were made.
  void makeAfter(const Window& first, const Window& after);

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
  void visit(const std::function<void(Window&)>& visitor) override;

 protected:
  // Inside another one, and made later where `making` says so.
  Pane(Pane& parent, DWORD style, Making making);
  // A window on its own, before `owner` if that is not null.
  Pane(const Make& make, HWND owner, Look& look);

  void makeBelow() override;
  const std::vector<std::unique_ptr<Window>>& children() const { return children_; }

  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

  Size inside() const;
  void drawAnew() const;

 private:
  HBRUSH answerColours(HDC surface, HWND child) const;
  void fill(HDC surface) const;
  void paint();

  int background_ = COLOR_WINDOW;
  Box body_;
  std::vector<std::unique_ptr<Window>> children_;
};

// A page: where it is lower than what stands on it, it scrolls, and follows the keys. It is made
// when somebody wants to see it, and hidden until then.
class ScrollPane : public Pane {
 public:
  explicit ScrollPane(Pane& parent);

  void layOut() override;
  void onFocusBelow(HWND below) override;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void showBar(int height, int seen);
  void scrollTo(int top);
  int wanted(WORD action) const;

  int top_ = 0;  // how far the top of the page is above the window's
};

}  // namespace zelvane::win32
